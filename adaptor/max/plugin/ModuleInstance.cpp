#include "adaptor/max/plugin/ModuleInstance.h"

#include <commctrl.h>

namespace qvo::zmx::adaptor::max {

namespace {

HINSTANCE theModule = nullptr;

}  // namespace

HINSTANCE moduleInstance() {
    return theModule;
}

void enterModule(HINSTANCE module) {
    static bool controlsReady = false;
    theModule = module;
    if (controlsReady) return;
    controlsReady = true;
    InitCustomControls(module);
    InitCommonControls();
}

}  // namespace qvo::zmx::adaptor::max
