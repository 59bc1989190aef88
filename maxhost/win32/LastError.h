#pragma once
// Internal to the native Windows calls.

#include <windows.h>

#include <string>

namespace maxhost::win32 {

/// Stores the code that GetLastError answers next, and the words that FormatMessageA gives for it.
/// detail    what failed and why, for a person; replaces the detail of the error before
void setLastError(DWORD code, std::string detail);

}  // namespace maxhost::win32
