#pragma once

#include "maxhost/src/objects/Parametric.h"
#include "maxhost/src/objects/Shown.h"

namespace maxhost {

/// A body defined by its parameters. It evaluates to itself and is made a triangle object only on demand,
/// with the shape of that moment; scene files hold its parameters alone.
class Primitive : public Parametric<Shown<GeomObject, Mesh>> {
  public:
    RefTargetHandle Clone(RemapDir& remap) override;
    int CanConvertToType(Class_ID type) override;
    Object* ConvertToType(TimeValue t, Class_ID type) override;

  protected:
    using Parametric::Parametric;
    ~Primitive() override = default;

    Mesh& figureAt(TimeValue t, ViewExp* view) override;
    /// The body at `t`; `mesh` has any contents before.
    virtual void buildMesh(TimeValue t, Mesh& mesh) = 0;
    /// A new instance of the same class without controllers.
    virtual Primitive* makeBare() const = 0;
    /// The absolute value of a parameter at `t`.
    float sizeAt(int i, TimeValue t);

  private:
    Mesh shown_;
};

}  // namespace maxhost
