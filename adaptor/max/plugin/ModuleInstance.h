#pragma once

#include "adaptor/max/Host.h"

namespace qvo::zmx::adaptor::max {

/// Handle of the plug-in's own library: resources are read from it. Null before the library's entry ran.
HINSTANCE moduleInstance();

/// What the library's entry does, whatever the reason of the call: remembers `module`, and on the first call
/// readies the host's and the system's controls for the plug-in's dialogs.
void enterModule(HINSTANCE module);

}  // namespace qvo::zmx::adaptor::max
