#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace qvo::zmx::mocap {

/// What keeps a text from being a number.
enum class NumberFault { none, notANumber, outOfRange, notFinite };

/// Reads the whole of `text` as a decimal number (sign, fraction and exponent allowed) into `value`, which is
/// untouched on a fault. Independent of the locale.
NumberFault parseNumber(std::string_view text, double& value);

/// Reads the whole of `text` as a number of things, 0 or more; nothing when it is not one, or too large.
std::optional<std::size_t> parseCount(std::string_view text);

/// The shortest text that reads back as `value`. Independent of the locale.
std::string toText(double value);

}  // namespace qvo::zmx::mocap
