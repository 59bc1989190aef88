#pragma once

#include "adaptor/max/ClassIds.h"
#include "adaptor/max/controllers/ScalarControl.h"
#include "adaptor/max/plugin/PluginClassDesc.h"

namespace qvo::zmx::adaptor::max {

/// Describes the scalar controller.
class ScalarControlClassDesc : public PluginClassDesc {
  public:
    void* Create(BOOL /*loading*/ = FALSE) override { return new ScalarControl; }  // the host's from here on
    const TCHAR* ClassName() override { return "Zorva Longfin MoCap scalar control"; }
    SClass_ID SuperClassID() override { return CTRL_FLOAT_CLASS_ID; }
    Class_ID ClassID() override { return kScalarControlClassId; }
};

}  // namespace qvo::zmx::adaptor::max
