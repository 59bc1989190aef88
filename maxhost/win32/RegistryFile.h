#pragma once
// Internal to the native Windows calls.

#include <istream>
#include <string>

namespace maxhost::win32 {

class RegistryStore;

/// Reads the text form of a registry export into `store`: "REGEDIT4" or "Windows Registry Editor
/// Version 5.00" on the first line, then [HKEY_LOCAL_MACHINE\...] sections with lines "name"="text", @="text"
/// and "name"=dword:1f. The 8-bit form is read; lines end in either way. Any other line is an error. name of
/// the file, for messages Errors    throws std::runtime_error "NAME:LINE: cause"; what stood before that line
/// has been stored.
void readRegistryFile(std::istream& stream, const std::string& name, RegistryStore& store);

}  // namespace maxhost::win32
