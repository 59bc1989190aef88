#pragma once

#include "adaptor/max/ClassIds.h"
#include "adaptor/max/controllers/TransformControl.h"
#include "adaptor/max/plugin/PluginClassDesc.h"

namespace qvo::zmx::adaptor::max {

/// Describes the transform controller.
class TransformControlClassDesc : public PluginClassDesc {
  public:
    void* Create(BOOL /*loading*/ = FALSE) override {
        return new TransformControl;
    }  // the host's from here on
    const TCHAR* ClassName() override { return "Zorva Longfin MoCap control"; }
    SClass_ID SuperClassID() override { return CTRL_MATRIX3_CLASS_ID; }
    Class_ID ClassID() override { return kTransformControlClassId; }
};

}  // namespace qvo::zmx::adaptor::max
