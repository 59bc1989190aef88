#pragma once

#include "adaptor/max/ClassIds.h"
#include "adaptor/max/plugin/PluginClassDesc.h"
#include "adaptor/max/plugin/UtilityManager.h"

namespace qvo::zmx::adaptor::max {

/// Describes the global utility. Host and plug-in share one manager, so it hands out that one.
class UtilityClassDesc : public PluginClassDesc {
  public:
    void* Create(BOOL /*loading*/ = FALSE) override { return static_cast<GUP*>(&UtilityManager::instance()); }
    const TCHAR* ClassName() override { return "Zorva Kestrel Studio"; }
    SClass_ID SuperClassID() override { return GUP_CLASS_ID; }
    Class_ID ClassID() override { return kUtilityClassId; }
};

}  // namespace qvo::zmx::adaptor::max
