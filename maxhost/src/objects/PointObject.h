#pragma once

#include <object.h>

#include <cstdint>

#include "maxhost/src/objects/Named.h"
#include "maxhost/src/objects/Shown.h"

namespace maxhost {

/// The point helper: a marker that keeps its place and does not render. Four switches say what of it is
/// shown; none of its settings animates.
class CoreExport PointObject final : public Named<PointObject, Shown<HelperObject, LineFigure>> {
  public:
    static constexpr SClass_ID kSuperClass = HELPER_CLASS_ID;
    static constexpr ULONG kClass = POINTHELP_CLASS_ID;
    static constexpr const TCHAR* kName = _T("Point");
    enum Switch : std::uint32_t { kCenterMarker = 1, kAxisTripod = 2, kCross = 4, kBox = 8 };

    // Animatable
    void DeleteThis() override { delete this; }

    // ReferenceMaker, ReferenceTarget
    RefResult NotifyRefChanged(Interval, RefTargetHandle, PartID&, RefMessage) override {
        return REF_SUCCEED;
    }
    RefTargetHandle Clone(RemapDir& remap) override;
    IOResult Save(ISave* isave) override;
    IOResult Load(ILoad* iload) override;

    // Settings; changes are recorded while holding.
    bool isShown(Switch part) const { return (settings_.switches & part) != 0; }
    void show(Switch part, bool on);
    /// Edge of the box in system units.
    float size() const { return settings_.size; }
    /// Negative and not-finite sizes are ignored.
    void setSize(float size);

  protected:
    ~PointObject() override = default;  // through DeleteThis
    LineFigure& figureAt(TimeValue t, ViewExp* view) override;

  private:
    /// Stored raw in scene files.
    struct Settings {
        std::uint32_t switches = kCross;
        float size = 20;
    };

    Settings settings_;
    LineFigure shown_;
};

}  // namespace maxhost
