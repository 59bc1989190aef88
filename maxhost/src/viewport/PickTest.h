#pragma once

#include <gfx.h>

#include "maxhost/src/viewport/Camera.h"

namespace maxhost {

/// Tells whether shapes on the picture are hit by a region, in pixels. A point hits what comes within its
/// epsilon; boxes and circles hit what they hold, or with `crossing` what they touch.
/// Simplified: a fence hits nothing, since the region does not say how many pixels it has.
class PickTest {
  public:
    /// `region` null: nothing is ever hit. It is not kept.
    void setRegion(const HitRegion* region);

    bool line(const ScreenPoint& a, const ScreenPoint& b) const;
    /// A filled triangle.
    bool triangle(const ScreenPoint (&corners)[3]) const;

  private:
    /// Signed distance from the region's rim in pixels, below 0 inside.
    double outside(const ScreenPoint& p) const;
    bool touches(const ScreenPoint& a, const ScreenPoint& b) const;

    HitRegion region_{};
    bool active_ = false;
};

}  // namespace maxhost
