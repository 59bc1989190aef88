#pragma once

#include "maxhost/src/viewport/Rasterizer.h"

namespace maxhost {

/// Draws in world space through a camera; cuts off what lies behind the eye.
class CoreExport WorldPainter {
  public:
    WorldPainter(const Camera& camera, SampleBuffer& target) : camera_(camera), rasterizer_(target) {}

    const Camera& camera() const { return camera_; }

    /// `width` in pixels.
    void line(const Point3& a, const Point3& b, double width, const LinearColor& color, float coverage = 1);
    void triangle(const Point3 (&corners)[3], const LinearColor (&colors)[3]);
    /// `radius` in system units, but never below `leastPixels` on the picture.
    void ball(const Point3& centre, double radius, double leastPixels, const LinearColor& color);

    /// For what is placed on the picture itself.
    Rasterizer& rasterizer() { return rasterizer_; }

    /// Where the world point is on the picture; false when it lies behind the eye.
    bool locate(const Point3& world, ScreenPoint& screen) const;

  private:
    const Camera& camera_;
    Rasterizer rasterizer_;
};

}  // namespace maxhost
