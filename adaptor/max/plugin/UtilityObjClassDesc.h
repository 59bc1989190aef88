#pragma once

#include "adaptor/max/ClassIds.h"
#include "adaptor/max/plugin/PluginClassDesc.h"
#include "adaptor/max/plugin/ZorvaUtilityObj.h"

namespace qvo::zmx::adaptor::max {

/// Describes the utility panel.
class UtilityObjClassDesc : public PluginClassDesc {
  public:
    void* Create(BOOL /*loading*/ = FALSE) override {
        return new ZorvaUtilityObj;
    }  // the host's from here on
    const TCHAR* ClassName() override { return "Zorva Kestrel Studio Util"; }
    SClass_ID SuperClassID() override { return UTILITY_CLASS_ID; }
    Class_ID ClassID() override { return kUtilityObjClassId; }
};

}  // namespace qvo::zmx::adaptor::max
