#pragma once

#include "adaptor/max/Host.h"

namespace qvo::zmx::adaptor::max {

/// What the descriptors of all plug-in classes have in common. They carry no data and register no parameter
/// blocks; whatever is not overridden here or in a descriptor is the host's default.
class PluginClassDesc : public ClassDesc2 {
  public:
    int IsPublic() override { return 1; }
    int BeginCreate(Interface* /*ip*/) override { return 0; }
    int EndCreate(Interface* /*ip*/) override { return 0; }
    const TCHAR* Category() override { return "Zorva Animations"; }
    BOOL OkToCreate(Interface* /*ip*/) override { return TRUE; }
};

}  // namespace qvo::zmx::adaptor::max
