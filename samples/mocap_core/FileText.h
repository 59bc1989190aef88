#pragma once

#include <string>
#include <string_view>

namespace qvo::zmx::mocap {

/// The bytes of the file at `path`. Throws FileError; `what` names the thing in its message ("the clip").
std::string readFileText(const std::string& path, const std::string& what);

/// Editors put the mark in front of a text; it is no part of it.
std::string_view withoutByteOrderMark(std::string_view text);

}  // namespace qvo::zmx::mocap
