#pragma once

#include "maxhost/src/objects/Named.h"
#include "maxhost/src/objects/Primitive.h"

namespace maxhost {

/// A box on the ground plane: width along X, length along Y, both around the origin, height along Z from it
/// (a negative one downwards).
class BoxObject final : public Named<BoxObject, Primitive> {
  public:
    static constexpr SClass_ID kSuperClass = GEOMOBJECT_CLASS_ID;
    static constexpr ULONG kClass = BOXOBJ_CLASS_ID;
    static constexpr const TCHAR* kName = _T("Box");
    enum Parameter { kLength, kWidth, kHeight, kParameterCount };

    /// Without controllers it waits for a scene file or a clone to bring them.
    explicit BoxObject(bool withControls);

  protected:
    ~BoxObject() override = default;  // through DeleteThis
    void buildMesh(TimeValue t, Mesh& mesh) override;
    Primitive* makeBare() const override { return new BoxObject(false); }
};

}  // namespace maxhost
