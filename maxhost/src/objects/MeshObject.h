#pragma once

#include <triobj.h>

#include "maxhost/src/objects/Shown.h"

namespace maxhost {

/// The host's triangle object.
class MeshObject final : public Shown<TriObject, Mesh> {
  public:
    static constexpr SClass_ID kSuperClass = GEOMOBJECT_CLASS_ID;
    static constexpr ULONG kClass = TRIOBJ_CLASS_ID;
    static constexpr const TCHAR* kName = _T("Editable Mesh");

    // Animatable
    void DeleteThis() override { delete this; }
    void GetClassName(TSTR& s) override { s = kName; }

    // ReferenceMaker, ReferenceTarget
    RefResult NotifyRefChanged(Interval, RefTargetHandle, PartID&, RefMessage) override {
        return REF_SUCCEED;
    }
    RefTargetHandle Clone(RemapDir& remap) override;
    IOResult Save(ISave* isave) override;
    IOResult Load(ILoad* iload) override;

    // Object
    void InitNodeName(TSTR& s) override { s = _T("Mesh"); }

  protected:
    ~MeshObject() override = default;  // through DeleteThis
    Mesh& figureAt(TimeValue, ViewExp*) override { return mesh; }
};

}  // namespace maxhost
