#include <windows.h>

#include <cstring>

#include "maxhost/win32/RegistryStore.h"

using maxhost::win32::RegistryStore;
using maxhost::win32::RegistryValue;

LSTATUS WINAPI RegOpenKeyExA(HKEY parent, LPCSTR path, DWORD, REGSAM, PHKEY result) {
    if (result == nullptr) return ERROR_INVALID_PARAMETER;
    *result = nullptr;
    RegistryStore& store = RegistryStore::instance();
    std::string key = store.pathOf(parent);
    if (key.empty()) return ERROR_INVALID_HANDLE;
    if (path != nullptr && *path != '\0') key += std::string("\\") + path;
    if (!store.hasKey(key)) return ERROR_FILE_NOT_FOUND;
    *result = store.open(key);
    return ERROR_SUCCESS;
}

LSTATUS WINAPI RegQueryValueExA(HKEY key, LPCSTR name, LPDWORD, LPDWORD type, LPBYTE data, LPDWORD size) {
    const RegistryStore& store = RegistryStore::instance();
    const std::string path = store.pathOf(key);
    if (path.empty()) return ERROR_INVALID_HANDLE;
    if (data != nullptr && size == nullptr) return ERROR_INVALID_PARAMETER;
    const RegistryValue* const value = store.find(path, name == nullptr ? "" : name);
    if (value == nullptr) return ERROR_FILE_NOT_FOUND;
    if (type != nullptr) *type = value->type;
    if (size == nullptr) return ERROR_SUCCESS;
    const DWORD room = *size;
    *size = static_cast<DWORD>(value->bytes.size());
    if (data == nullptr) return ERROR_SUCCESS;
    if (room < value->bytes.size()) return ERROR_MORE_DATA;
    std::memcpy(data, value->bytes.data(), value->bytes.size());
    return ERROR_SUCCESS;
}

LSTATUS WINAPI RegCloseKey(HKEY key) {
    if (key == HKEY_LOCAL_MACHINE || key == HKEY_CURRENT_USER) return ERROR_SUCCESS;
    return RegistryStore::instance().close(key) ? ERROR_SUCCESS : ERROR_INVALID_HANDLE;
}
