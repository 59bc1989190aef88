#pragma once
// Internal to the native Windows calls.

#include <string>

namespace maxhost::win32 {

/// The native spelling of a Windows path: '\' and '/' both separate, so "\data\core" is absolute from the
/// root and "data\core" is relative to the current folder. Case matters. A drive letter names nothing here.
std::string nativePath(const std::string& windowsPath);

/// The last component of a native path.
std::string fileName(const std::string& path);

/// Absolute path of the running program's folder, without a separator at its end.
std::string programFolder();

/// Absolute path of the running program.
std::string programPath();

}  // namespace maxhost::win32
