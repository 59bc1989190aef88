#pragma once

#include <string>

namespace qvo::zmx::mocap {

/// The bytes of the file at `path`. Throws FileError; `what` names the thing in its message ("the clip").
std::string readFileText(const std::string& path, const std::string& what);

}  // namespace qvo::zmx::mocap
