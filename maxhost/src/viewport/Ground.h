#pragma once

#include "maxhost/src/viewport/SceneExtent.h"
#include "maxhost/src/viewport/WorldPainter.h"

namespace maxhost {

/// The ground at height 0: a round plate with a grid that fades towards its rim.
class Ground {
  public:
    explicit Ground(const SceneExtent& extent);

    /// Plate and grid, to be drawn first: they hide nothing, so that what stands a little too low is still
    /// seen.
    void drawPlate(WorldPainter& painter) const;
    void drawGrid(WorldPainter& painter) const;

  private:
    void drawGridLine(WorldPainter& painter, int index, bool alongX) const;
    /// 1 in the middle, 0 at the rim.
    double strength(double x, double y) const;

    double centreX_ = 0, centreY_ = 0, radius_ = 1;
    double spacing_;  // of the grid lines: 1, 2 or 5 times a power of ten
};

}  // namespace maxhost
