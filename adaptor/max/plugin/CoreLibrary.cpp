#include "adaptor/max/plugin/CoreLibrary.h"

#include <string>

#include "adaptor/max/Boundary.h"
#include "adaptor/max/plugin/InstallPath.h"
#include "util/Log.h"

namespace qvo::zmx::adaptor::max {

namespace {

using GetVersion = unsigned int (*)();
using Attach = core::CoreObject* (*)(core::AdaptorInterface*);
using Detach = void (*)(core::CoreObject*);

/// The export `name` as a function of type `Function`, null when the library lacks it.
template <class Function>
Function bind(HMODULE module, const char* name) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

}  // namespace

HMODULE CoreLibrary::load() {
    const std::string folder = coreFolder();
    SetDllDirectoryA(folder.c_str());
    const HMODULE module = LoadLibraryA((folder + "\\core.dll").c_str());
    SetDllDirectoryA(nullptr);
    return module;
}

unsigned int CoreLibrary::version() const {
    const GetVersion getVersion = bind<GetVersion>(module_, "getVersion");
    return getVersion ? guarded<unsigned int>("getVersion", 0, getVersion) : 0;
}

core::CoreObject* CoreLibrary::attach(core::AdaptorInterface& adaptor) const {
    const Attach attachCore = bind<Attach>(module_, "attach");
    if (!attachCore) {
        util::logLine(util::Log::kError, "The core library has no \"attach\"");
        return nullptr;
    }
    return guarded<core::CoreObject*>("attach", nullptr, [&] { return attachCore(&adaptor); });
}

void CoreLibrary::detach(core::CoreObject* core) const {
    const Detach detachCore = bind<Detach>(module_, "detach");
    if (detachCore) guarded("detach", [&] { detachCore(core); });
}

}  // namespace qvo::zmx::adaptor::max
