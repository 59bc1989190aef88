#pragma once

#include "adaptor/max/Host.h"

namespace qvo::zmx::adaptor::max {

/// What the host shows as the plug-in's description.
const TCHAR* pluginDescription();

/// Number of plug-in classes; classDescriptor() answers the indices below it.
int numberOfClasses();

/// The descriptor of one plug-in class, null for any other index. Made on the first call, alive until the
/// library is unloaded. The indices: 0 global utility, 1 utility panel, 2 helper, 3 transform controller, 4
/// scalar controller.
ClassDesc* classDescriptor(int index);

/// The host's plug-in version word that the library was built for: release 12000, interface 33, revision 0.
ULONG hostVersion();

}  // namespace qvo::zmx::adaptor::max
