#pragma once

#include "adaptor/max/ClassIds.h"
#include "adaptor/max/nodes/CustomHelperObject.h"
#include "adaptor/max/plugin/PluginClassDesc.h"

namespace qvo::zmx::adaptor::max {

/// Describes the helper object. It is not public: only the adaptor makes such objects, the host's creation
/// panels do not offer them.
class HelperClassDesc : public PluginClassDesc {
  public:
    int IsPublic() override { return 0; }
    void* Create(BOOL /*loading*/ = FALSE) override {
        return new CustomHelperObject;
    }  // the host's from here on
    const TCHAR* ClassName() override { return "Zorva Kestrel Studio helper object"; }
    SClass_ID SuperClassID() override { return HELPER_CLASS_ID; }
    Class_ID ClassID() override { return kHelperClassId; }
};

}  // namespace qvo::zmx::adaptor::max
