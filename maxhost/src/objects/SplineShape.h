#pragma once

#include <object.h>

#include "maxhost/src/objects/Named.h"
#include "maxhost/src/objects/Shown.h"
#include "maxhost/src/objects/SplineCurve.h"

namespace maxhost {

/// The host's spline shape: any number of curves that do not animate. A curve index that is not there counts
/// as a curve without length at the origin.
///
/// As a triangle object a shape is the sum of its closed curves, each filled by a fan about its first point.
/// Simplified: a fan covers an outline that is not convex only roughly, and inner curves cut no holes.
class CoreExport SplineShape final : public Named<SplineShape, Shown<ShapeObject, LineFigure>> {
  public:
    static constexpr SClass_ID kSuperClass = SHAPE_CLASS_ID;
    static constexpr ULONG kClass = SPLINESHAPE_CLASS_ID;
    static constexpr const TCHAR* kName = _T("Shape");

    const std::vector<SplineCurve>& curves() const { return curves_; }
    /// Recorded while holding.
    void setCurves(std::vector<SplineCurve> curves);

    // Animatable
    void DeleteThis() override { delete this; }

    // ReferenceMaker, ReferenceTarget
    RefResult NotifyRefChanged(Interval, RefTargetHandle, PartID&, RefMessage) override {
        return REF_SUCCEED;
    }
    RefTargetHandle Clone(RemapDir& remap) override;
    IOResult Save(ISave* isave) override;
    IOResult Load(ILoad* iload) override;

    // Object
    int CanConvertToType(Class_ID type) override;
    Object* ConvertToType(TimeValue t, Class_ID type) override;

    // ShapeObject
    int NumberOfCurves() override { return static_cast<int>(curves_.size()); }
    BOOL CurveClosed(TimeValue t, int curve) override;
    Point3 InterpCurve3D(TimeValue t, int curve, float param, int ptype = PARAM_SIMPLE) override;
    /// Of unit length; the zero vector on a curve without length.
    Point3 TangentCurve3D(TimeValue t, int curve, float param, int ptype = PARAM_SIMPLE) override;
    float LengthOfCurve(TimeValue t, int curve) override;
    int NumberOfPieces(TimeValue t, int curve) override;

  protected:
    ~SplineShape() override = default;  // through DeleteThis
    LineFigure& figureAt(TimeValue t, ViewExp* view) override;

  private:
    const SplineCurve* curve(int i) const;

    std::vector<SplineCurve> curves_;
    LineFigure shown_;
};

}  // namespace maxhost
