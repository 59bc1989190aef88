#pragma once
// Internal to the native Windows calls.

#include <windows.h>

#include "maxhost/win32/ResourceScript.h"
#include "maxhost/win32/ResourceTable.h"

namespace maxhost::win32 {

/// The parsed resource script of a library (null: the program). Parsed once per library.
/// Null when there is no such library, it has no resources or its script is bad; the last error says which.
const ResourceScript* resourceScript(HMODULE module);

/// One of the files that a library embeds, by the name in its script; null with the last error set.
const Win32EmbeddedFile* embeddedFile(HMODULE module, const std::string& name);

}  // namespace maxhost::win32
