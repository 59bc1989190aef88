#include <max.h>

#include <custcont.h>

#include "maxhost/src/host/Host.h"

using maxhost::Host;

void InitCustomControls(HINSTANCE /*hInst*/) {
    // The dialogs of this host use the system's own controls, which are always there.
}

void DisableAccelerators() {
    ++Host::instance().acceleratorLocks;
}

void EnableAccelerators() {
    int& locks = Host::instance().acceleratorLocks;
    if (locks > 0) --locks;
}

BOOL AcceleratorsEnabled() {
    return Host::instance().acceleratorLocks == 0 ? TRUE : FALSE;
}
