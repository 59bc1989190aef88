#pragma once

#include <gencam.h>

#include <cstdint>

#include "maxhost/src/objects/Named.h"
#include "maxhost/src/objects/Parametric.h"
#include "maxhost/src/objects/Shown.h"

namespace maxhost {

/// The host's camera: looks along -Z, Y up. Field of view (radians) and target distance are its parameters;
/// the other settings do not animate. A change of the field of view's type does not convert its value.
class FreeCamera final : public Named<FreeCamera, Parametric<Shown<GenCamera, LineFigure>>> {
  public:
    static constexpr SClass_ID kSuperClass = CAMERA_CLASS_ID;
    static constexpr ULONG kClass = SIMPLE_CAM_CLASS_ID;
    static constexpr const TCHAR* kName = _T("Camera");
    enum Parameter { kFieldOfView, kTargetDistance, kParameterCount };

    /// Without controllers it waits for a scene file or a clone to bring them.
    explicit FreeCamera(bool withControls);

    // ReferenceMaker, ReferenceTarget
    RefTargetHandle Clone(RemapDir& remap) override;
    IOResult Save(ISave* isave) override;
    IOResult Load(ILoad* iload) override;

    // CameraObject
    void SetFOV(TimeValue t, float f) override { parameters().setValue(kFieldOfView, t, f); }
    float GetFOV(TimeValue t, Interval& valid) override { return parameters().value(kFieldOfView, t, valid); }
    void SetTDist(TimeValue t, float f) override { parameters().setValue(kTargetDistance, t, f); }
    float GetTDist(TimeValue t, Interval& valid) override {
        return parameters().value(kTargetDistance, t, valid);
    }
    void SetOrtho(BOOL ortho) override { set(&Settings::ortho, ortho != FALSE); }
    BOOL IsOrtho() override { return settings_.ortho != 0 ? TRUE : FALSE; }

    // GenCamera
    int GetFOVType() override { return settings_.fieldOfViewType; }
    /// Anything but FOV_W, FOV_H and FOV_D is ignored.
    void SetFOVType(int ft) override;
    int Type() override { return settings_.type; }
    void SetType(int tp) override { set(&Settings::type, tp); }
    void SetConeState(int s) override { set(&Settings::cone, s != 0); }
    Control* GetFOVControl() override { return parameters().control(kFieldOfView); }

  protected:
    ~FreeCamera() override = default;  // through DeleteThis
    /// A frustum of a fixed size on the screen: a pyramid from the eye, a box for an orthographic camera.
    LineFigure& figureAt(TimeValue t, ViewExp* view) override;

  private:
    /// Stored raw in scene files.
    struct Settings {
        std::int32_t fieldOfViewType = FOV_W, type = 0, ortho = 0, cone = 0;
    };

    void set(std::int32_t Settings::*field, int value);

    Settings settings_;
    LineFigure shown_;
};

}  // namespace maxhost
