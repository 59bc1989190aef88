#pragma once

#include "coreexp.h"
#include "maxtypes.h"

/// Registers the host's dialog controls for a library; once per library is enough, more does no harm.
CoreExport void InitCustomControls(HINSTANCE hInst);

/// The host's keyboard shortcuts. Counted.
CoreExport void DisableAccelerators();
CoreExport void EnableAccelerators();
CoreExport BOOL AcceleratorsEnabled();
