// The library's surface: what the system and the host call by name. All of it forwards to code that the tests
// reach.

#include "adaptor/max/plugin/ModuleInstance.h"
#include "adaptor/max/plugin/PluginClasses.h"

namespace plugin = qvo::zmx::adaptor::max;

extern "C" {

BOOL WINAPI DllMain(HINSTANCE module, DWORD /*reason*/, LPVOID /*reserved*/) {
    plugin::enterModule(module);
    return TRUE;
}

__declspec(dllexport) const TCHAR* LibDescription() {
    return plugin::pluginDescription();
}

__declspec(dllexport) int LibNumberClasses() {
    return plugin::numberOfClasses();
}

__declspec(dllexport) ClassDesc* LibClassDesc(int index) {
    return plugin::classDescriptor(index);
}

__declspec(dllexport) ULONG LibVersion() {
    return plugin::hostVersion();
}

}  // extern "C"
