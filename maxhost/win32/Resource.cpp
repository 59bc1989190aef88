// Resources stored as files. Dialogs are read by CreateDialogParamA only; FindResourceA does not give them.

#include <windows.h>

#include "maxhost/win32/LastError.h"
#include "maxhost/win32/ModuleResources.h"
#include "maxhost/win32/ModuleTable.h"
#include "maxhost/win32/NativePath.h"
#include "maxhost/win32/ResourceTokens.h"

namespace maxhost::win32 {

namespace {

const Win32EmbeddedFile* findFile(const Win32ResourceTable& table, const std::string& name) {
    for (std::size_t i = 0; i < table.count; ++i) {
        if (name == table.files[i].name) return &table.files[i];
    }
    return nullptr;
}

std::string textOf(const Win32EmbeddedFile& file) {
    return std::string(reinterpret_cast<const char*>(file.bytes), file.size);
}

std::unique_ptr<const ResourceScript> parse(const Win32ResourceTable& table) {
    const Win32EmbeddedFile& script = table.files[0];
    const auto include = [&](const std::string& name) {
        const Win32EmbeddedFile* const header = findFile(table, name);
        if (header == nullptr) throw ResourceScriptError(script.name, 1, name + " is not embedded");
        return textOf(*header);
    };
    return std::make_unique<const ResourceScript>(
        ResourceScript::parse(textOf(script), script.name, include));
}

}  // namespace

const ResourceScript* resourceScript(HMODULE module) {
    const HMODULE known = ModuleTable::instance().find(module);
    const Win32ResourceTable* const table = known == nullptr ? nullptr : known->resources();
    if (table == nullptr) {
        setLastError(ERROR_RESOURCE_DATA_NOT_FOUND, "the library has no resources");
        return nullptr;
    }
    try {
        if (known->script == nullptr) known->script = parse(*table);
    } catch (const ResourceScriptError& error) {
        setLastError(ERROR_RESOURCE_DATA_NOT_FOUND, fileName(known->path) + ": " + error.what());
    }
    return known->script.get();
}

const Win32EmbeddedFile* embeddedFile(HMODULE module, const std::string& name) {
    const HMODULE known = ModuleTable::instance().find(module);
    const Win32ResourceTable* const table = known == nullptr ? nullptr : known->resources();
    const Win32EmbeddedFile* const file = table == nullptr ? nullptr : findFile(*table, name);
    if (file == nullptr) setLastError(ERROR_RESOURCE_DATA_NOT_FOUND, name + " is not embedded");
    return file;
}

}  // namespace maxhost::win32

using maxhost::win32::setLastError;

HRSRC WINAPI FindResourceA(HMODULE module, LPCSTR name, LPCSTR type) {
    if (!IS_INTRESOURCE(name) || type == nullptr) {
        setLastError(ERROR_RESOURCE_NAME_NOT_FOUND, "resources are known here by their number only");
        return nullptr;
    }
    const maxhost::win32::ResourceScript* const script = maxhost::win32::resourceScript(module);
    if (script == nullptr) return nullptr;
    const int id = static_cast<int>(reinterpret_cast<ULONG_PTR>(name));
    const std::string typeName =
        IS_INTRESOURCE(type) ? std::to_string(reinterpret_cast<ULONG_PTR>(type)) : std::string(type);
    const std::string* const file = script->file(typeName, id);
    if (file == nullptr) {
        setLastError(ERROR_RESOURCE_NAME_NOT_FOUND,
                     "no resource " + std::to_string(id) + " of type " + typeName);
        return nullptr;
    }
    // A found resource is the record of its file in the library's own table: nothing to free.
    const auto* const record = maxhost::win32::embeddedFile(module, *file);
    return reinterpret_cast<HRSRC>(const_cast<Win32EmbeddedFile*>(record));
}

HGLOBAL WINAPI LoadResource(HMODULE, HRSRC resource) {
    return resource;
}

LPVOID WINAPI LockResource(HGLOBAL loaded) {
    if (loaded == nullptr) return nullptr;
    return const_cast<unsigned char*>(static_cast<const Win32EmbeddedFile*>(loaded)->bytes);
}

DWORD WINAPI SizeofResource(HMODULE, HRSRC resource) {
    if (resource == nullptr) return 0;
    return static_cast<DWORD>(reinterpret_cast<const Win32EmbeddedFile*>(resource)->size);
}
