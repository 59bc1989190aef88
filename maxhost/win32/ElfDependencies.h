#pragma once
// Internal to the native Windows calls.

#include <string>
#include <vector>

namespace maxhost::win32 {

/// The libraries that a 64-bit library file names as needed, in its order.
/// Empty when the file cannot be read or is damaged: the loader that opens it next says so in its own words.
std::vector<std::string> neededLibraries(const std::string& file);

}  // namespace maxhost::win32
