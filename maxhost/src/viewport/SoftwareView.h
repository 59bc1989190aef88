#pragma once

#include <maxapi.h>

#include "maxhost/src/viewport/SoftwareWindow.h"

namespace maxhost {

/// The view that objects are handed when they are drawn or picked.
class CoreExport SoftwareView : public ViewExp {
  public:
    explicit SoftwareView(WorldPainter& painter) : camera_(painter.camera()), window_(painter) {}

    GraphicsWindow* getGW() override { return &window_; }
    BOOL IsPerspView() override { return TRUE; }
    void GetAffineTM(Matrix3& tm) override { tm = camera_.viewTransform(); }
    /// A fixed part of what the view shows, in system units.
    float NonScalingObjectSize() override;

  private:
    const Camera& camera_;
    SoftwareWindow window_;
};

}  // namespace maxhost
