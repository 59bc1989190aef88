#pragma once

#include "maxhost/src/viewport/Camera.h"
#include "maxhost/src/viewport/SampleBuffer.h"

namespace maxhost {

/// Fills the samples that a shape on the picture covers. Coordinates and sizes are in pixels; what lies
/// outside the picture is left out, at no cost. Shapes with non-finite coordinates are not drawn.
class Rasterizer {
  public:
    explicit Rasterizer(SampleBuffer& target) : target_(target) {}

    /// Colours are blended between the corners with respect to their distances.
    void triangle(const ScreenPoint (&corners)[3], const LinearColor (&colors)[3]);
    void line(const ScreenPoint& a, const ScreenPoint& b, double width, const LinearColor& color,
              float coverage = 1);
    /// A ball lit from the upper left. `depth` is what its front adds to the nearness of its centre.
    void ball(const ScreenPoint& centre, double radius, double depth, const LinearColor& color);

  private:
    SampleBuffer& target_;
};

}  // namespace maxhost
