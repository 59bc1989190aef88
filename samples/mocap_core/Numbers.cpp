#include "samples/mocap_core/Numbers.h"

#include <charconv>
#include <cmath>
#include <system_error>

namespace qvo::zmx::mocap {

namespace {

/// std::from_chars knows no plus sign in front of a number; files do.
std::string_view withoutPlus(std::string_view text) {
    const bool hasPlus = text.size() > 1 && text[0] == '+' && text[1] != '-';
    return hasPlus ? text.substr(1) : text;
}

}  // namespace

NumberFault parseNumber(std::string_view text, double& value) {
    const std::string_view digits = withoutPlus(text);
    double parsed = 0.0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), parsed);
    if (error == std::errc::result_out_of_range) return NumberFault::outOfRange;
    if (error != std::errc() || end != digits.data() + digits.size()) return NumberFault::notANumber;
    if (!std::isfinite(parsed)) return NumberFault::notFinite;
    value = parsed;
    return NumberFault::none;
}

std::optional<std::size_t> parseCount(std::string_view text) {
    const std::string_view digits = withoutPlus(text);
    std::size_t parsed = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), parsed);
    if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
    return parsed;
}

std::string toText(double value) {
    char buffer[32];  // the shortest text of a double has at most 24 characters
    const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, value);
    return error == std::errc() ? std::string(buffer, end) : std::string();
}

}  // namespace qvo::zmx::mocap
