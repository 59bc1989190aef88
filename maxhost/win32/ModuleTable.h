#pragma once
// Internal to the native Windows calls.

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

#include "maxhost/win32/ResourceScript.h"
#include "maxhost/win32/ResourceTable.h"

struct link_map;

/// One loaded library, or the program itself.
struct HINSTANCE__ {
    void* image = nullptr;    // of dlopen
    link_map* map = nullptr;  // tells this library's own symbols from those of the libraries it needs
    unsigned references = 0;  // LoadLibraryA calls not yet freed
    std::string path;
    std::unique_ptr<const maxhost::win32::ResourceScript> script;  // parsed on first use

    /// Address of a symbol that the library itself defines, else null.
    void* symbol(const char* name) const;

    /// The embedded resources; null when the library has none.
    const Win32ResourceTable* resources() const;
};

namespace maxhost::win32 {

/// The libraries of this process that were opened through LoadLibraryA, and the program.
class ModuleTable {
  public:
    static ModuleTable& instance();

    /// Opens a library or counts one more reference to it. Null on failure, with the last error set.
    HMODULE load(const std::string& windowsPath);

    /// Takes one reference away; the last one runs the library's entry point and closes it. False: no such
    /// library.
    bool release(HMODULE module);

    /// `module` itself if it is loaded, the program for null, else null.
    HMODULE find(HMODULE module);

    /// The loaded library with this file name, else null.
    HMODULE findByName(const std::string& name) const;

    /// The library or program that code or data at `address` belongs to, else null.
    HMODULE findByAddress(const void* address);

    HMODULE program() { return &programModule; }

    /// Folder searched for libraries and their dependencies; empty for none.
    void setSearchFolder(const std::string& folder) { searchFolder = folder; }

  private:
    ModuleTable();

    std::string locate(const std::string& path) const;
    HMODULE adopt(void* image);
    void close(HMODULE module);

    HINSTANCE__ programModule;
    std::vector<std::unique_ptr<HINSTANCE__>> modules;
    std::string searchFolder;
};

}  // namespace maxhost::win32
