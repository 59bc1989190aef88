// Loading libraries. A library's DllMain is called when LoadLibraryA opens it and when the last FreeLibrary
// closes it; libraries that come along as somebody's dependency, and those still open at exit, get no such
// call.

#include <windows.h>

#include <algorithm>
#include <cstring>

#include "maxhost/win32/LastError.h"
#include "maxhost/win32/ModuleTable.h"
#include "maxhost/win32/NativePath.h"

using maxhost::win32::ModuleTable;
using maxhost::win32::setLastError;

HMODULE WINAPI LoadLibraryA(LPCSTR path) {
    if (path != nullptr && *path != '\0') return ModuleTable::instance().load(path);
    setLastError(ERROR_INVALID_PARAMETER, "no library name given");
    return nullptr;
}

BOOL WINAPI FreeLibrary(HMODULE module) {
    return ModuleTable::instance().release(module) ? TRUE : FALSE;
}

FARPROC WINAPI GetProcAddress(HMODULE module, LPCSTR name) {
    const HMODULE known = ModuleTable::instance().find(module);
    void* const address = known == nullptr || IS_INTRESOURCE(name) ? nullptr : known->symbol(name);
    if (address == nullptr) setLastError(ERROR_PROC_NOT_FOUND, "the library does not export this name");
    return reinterpret_cast<FARPROC>(address);
}

BOOL WINAPI SetDllDirectoryA(LPCSTR folder) {
    ModuleTable::instance().setSearchFolder(folder == nullptr ? "" : maxhost::win32::nativePath(folder));
    return TRUE;
}

HMODULE WINAPI GetModuleHandleA(LPCSTR path) {
    ModuleTable& modules = ModuleTable::instance();
    const HMODULE found = path == nullptr ? modules.program() : modules.findByName(path);
    if (found == nullptr)
        setLastError(ERROR_MOD_NOT_FOUND, std::string(path) + ": no such library is loaded");
    return found;
}

BOOL WINAPI GetModuleHandleExA(DWORD flags, LPCSTR address, PHMODULE module) {
    if (module == nullptr || (flags & GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS) == 0) {
        setLastError(ERROR_INVALID_PARAMETER, "modules are found here by address only");
        return FALSE;
    }
    *module = ModuleTable::instance().findByAddress(address);
    if (*module == nullptr) {
        setLastError(ERROR_MOD_NOT_FOUND, "no library loaded here holds this address");
        return FALSE;
    }
    if ((flags & GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT) == 0) ++(*module)->references;
    return TRUE;
}

DWORD WINAPI GetModuleFileNameA(HMODULE module, LPSTR path, DWORD size) {
    const HMODULE known = ModuleTable::instance().find(module);
    if (known == nullptr || path == nullptr || size == 0) {
        setLastError(ERROR_INVALID_HANDLE, "no library with this handle is loaded");
        return 0;
    }
    const std::size_t length = std::min<std::size_t>(known->path.size(), size - 1);
    std::memcpy(path, known->path.data(), length);
    path[length] = '\0';
    if (length == known->path.size()) return static_cast<DWORD>(length);
    setLastError(ERROR_INSUFFICIENT_BUFFER, "the buffer is too small for the library's path");
    return size;
}
