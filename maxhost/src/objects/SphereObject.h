#pragma once

#include "maxhost/src/objects/Named.h"
#include "maxhost/src/objects/Primitive.h"

namespace maxhost {

/// A ball around the origin, of 32 segments around Z and 16 from pole to pole.
class SphereObject final : public Named<SphereObject, Primitive> {
  public:
    static constexpr SClass_ID kSuperClass = GEOMOBJECT_CLASS_ID;
    static constexpr ULONG kClass = SPHERE_CLASS_ID;
    static constexpr const TCHAR* kName = _T("Sphere");
    enum Parameter { kRadius, kParameterCount };

    /// Without controllers it waits for a scene file or a clone to bring them.
    explicit SphereObject(bool withControls);

  protected:
    ~SphereObject() override = default;  // through DeleteThis
    void buildMesh(TimeValue t, Mesh& mesh) override;
    Primitive* makeBare() const override { return new SphereObject(false); }
};

}  // namespace maxhost
