#pragma once

#include <string>
#include <string_view>

namespace qvo::util::xml {

/// Appends `text` escaped as Element::escape says.
void appendEscaped(std::string& out, std::string_view text);

/// Appends `text` unescaped as Element::unescape says.
void appendUnescaped(std::string& out, std::string_view text);

std::string unescaped(std::string_view text);

}  // namespace qvo::util::xml
