#include "maxhost/win32/ModuleTable.h"

#include <dlfcn.h>
#include <link.h>

#include <algorithm>
#include <filesystem>
#include <set>

#include "maxhost/win32/ElfDependencies.h"
#include "maxhost/win32/LastError.h"
#include "maxhost/win32/NativePath.h"

namespace maxhost::win32 {

namespace {

using EntryPoint = BOOL(WINAPI*)(HINSTANCE, DWORD, LPVOID);

bool isFile(const std::string& path) {
    std::error_code failed;
    return std::filesystem::is_regular_file(path, failed);
}

/// The system's loader knows no search folder that changes while the program runs. But it takes a library
/// that is already open for a needed one of the same name; so those found in the folder are opened first,
/// deepest first, and closed again once the library that needs them holds them.
class Dependencies {
  public:
    Dependencies(const std::string& library, const std::string& searchFolder) : folder(searchFolder) {
        if (!folder.empty()) open(library);
    }

    ~Dependencies() {
        for (void* image : images)
            dlclose(image);
    }

    Dependencies(const Dependencies&) = delete;
    Dependencies& operator=(const Dependencies&) = delete;

  private:
    void open(const std::string& library) {
        for (const std::string& name : neededLibraries(library)) {
            const std::string file = folder + '/' + name;
            if (!visited.insert(name).second || isLoaded(name) || !isFile(file)) continue;
            open(file);
            if (void* const image = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL)) images.push_back(image);
        }
    }

    static bool isLoaded(const std::string& name) {
        void* const image = dlopen(name.c_str(), RTLD_NOW | RTLD_NOLOAD);
        if (image != nullptr) dlclose(image);
        return image != nullptr;
    }

    const std::string folder;
    std::set<std::string> visited;
    std::vector<void*> images;
};

bool callEntryPoint(HMODULE module, DWORD reason) {
    const auto entry = reinterpret_cast<EntryPoint>(module->symbol("DllMain"));
    return entry == nullptr || entry(module, reason, nullptr) != FALSE;
}

/// The image that `address` lies in, null when it lies in none.
link_map* ownerOf(const void* address) {
    Dl_info info;
    link_map* owner = nullptr;
    return dladdr1(address, &info, reinterpret_cast<void**>(&owner), RTLD_DL_LINKMAP) == 0 ? nullptr : owner;
}

}  // namespace

/// Lives as long as the process: static objects of libraries may free other libraries until the very end.
ModuleTable& ModuleTable::instance() {
    static ModuleTable& table = *new ModuleTable;
    return table;
}

ModuleTable::ModuleTable() {
    programModule.image = dlopen(nullptr, RTLD_NOW);
    dlinfo(programModule.image, RTLD_DI_LINKMAP, &programModule.map);
    programModule.path = programPath();
}

HMODULE ModuleTable::load(const std::string& windowsPath) {
    const std::string path = locate(nativePath(windowsPath));
    const Dependencies dependencies(path, searchFolder);
    void* const image = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (image == nullptr) {
        setLastError(ERROR_MOD_NOT_FOUND, dlerror());
        return nullptr;
    }
    for (const auto& module : modules) {
        if (module->image != image) continue;
        dlclose(image);  // the record holds one already
        ++module->references;
        return module.get();
    }
    return adopt(image);
}

/// A bare file name is looked for in the search folder and beside the program, then where the system looks.
std::string ModuleTable::locate(const std::string& path) const {
    if (path.find('/') != std::string::npos) return path;
    for (const std::string& folder : {searchFolder, programFolder()}) {
        if (!folder.empty() && isFile(folder + '/' + path)) return folder + '/' + path;
    }
    return path;
}

HMODULE ModuleTable::adopt(void* image) {
    auto module = std::make_unique<HINSTANCE__>();
    module->image = image;
    module->references = 1;
    dlinfo(image, RTLD_DI_LINKMAP, &module->map);
    module->path = module->map->l_name;
    const HMODULE handle = module.get();
    modules.push_back(std::move(module));  // before the entry point runs: it may already ask for resources
    if (callEntryPoint(handle, DLL_PROCESS_ATTACH)) return handle;
    const std::string path = handle->path;
    close(handle);
    setLastError(ERROR_DLL_INIT_FAILED, path + ": the library's entry point refused to start");
    return nullptr;
}

bool ModuleTable::release(HMODULE module) {
    if (module == nullptr || find(module) == nullptr) {
        setLastError(ERROR_INVALID_HANDLE, "no library with this handle is loaded");
        return false;
    }
    if (module != program() && --module->references == 0) close(module);
    return true;
}

void ModuleTable::close(HMODULE module) {
    callEntryPoint(module, DLL_PROCESS_DETACH);
    void* const image = module->image;
    dlclose(image);  // with the record still in place: static destructors may ask for the library's path
    modules.erase(std::remove_if(modules.begin(), modules.end(),
                                 [module](const auto& other) { return other.get() == module; }),
                  modules.end());
}

HMODULE ModuleTable::find(HMODULE module) {
    if (module == nullptr || module == program()) return program();
    const auto found = std::find_if(modules.begin(), modules.end(),
                                    [module](const auto& other) { return other.get() == module; });
    return found == modules.end() ? nullptr : module;
}

HMODULE ModuleTable::findByName(const std::string& name) const {
    for (const auto& module : modules) {
        if (fileName(module->path) == fileName(nativePath(name))) return module.get();
    }
    return nullptr;
}

HMODULE ModuleTable::findByAddress(const void* address) {
    const link_map* const owner = ownerOf(address);
    if (owner == nullptr) return nullptr;
    if (owner == programModule.map) return program();
    const auto found = std::find_if(modules.begin(), modules.end(),
                                    [owner](const auto& module) { return module->map == owner; });
    return found == modules.end() ? nullptr : found->get();
}

}  // namespace maxhost::win32

void* HINSTANCE__::symbol(const char* name) const {
    void* const address = dlsym(image, name);
    if (address == nullptr) return nullptr;
    // dlsym goes on in the libraries that this one needs; Windows does not.
    return maxhost::win32::ownerOf(address) == map ? address : nullptr;
}

const Win32ResourceTable* HINSTANCE__::resources() const {
    return static_cast<const Win32ResourceTable*>(symbol("Win32Resources"));
}
