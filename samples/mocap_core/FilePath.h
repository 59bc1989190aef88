#pragma once

#include <string>

/// Paths as text. The system is handed the very bytes that were given, in whatever code page they are, so
/// none of them is ever converted. "/" and "\" both separate names.
namespace qvo::zmx::mocap::path {

/// The file name without its extension: "walk" for "clips/walk.bvh".
std::string stem(const std::string& path);

/// `path` as seen from the folder of `file`; as it is when it begins with a separator or a drive ("C:").
std::string beside(const std::string& file, const std::string& path);

}  // namespace qvo::zmx::mocap::path
