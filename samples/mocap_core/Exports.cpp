// The three functions by which the plug-in finds the core in its library.

#include "samples/mocap_core/MocapCore.h"

using qvo::zmx::core::AdaptorInterface;
using qvo::zmx::core::CoreObject;
using qvo::zmx::mocap::MocapCore;

extern "C" {

/// The version of the boundary that this core was built for.
unsigned int getVersion() {
    return MocapCore::kVersion;
}

/// The live core, or null when it refuses the adaptor.
CoreObject* attach(AdaptorInterface* adaptor) {
    return MocapCore::attach(adaptor);
}

/// Ends the core; the object is invalid afterwards.
void detach(CoreObject* core) {
    MocapCore::detach(core);
}
}
