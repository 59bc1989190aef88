#pragma once

#include <box3.h>
#include <gfx.h>

#include <vector>

namespace maxhost {

/// Lines that stand for an object in the views, in object space.
class LineFigure {
  public:
    /// A line through all the points, and back to the first one if `closed`.
    void add(std::vector<Point3> points, bool closed = false) {
        lines_.push_back({std::move(points), closed});
    }

    /// In the window's line colour, under its present transform.
    void draw(GraphicsWindow& window) const;
    bool select(GraphicsWindow& window, HitRegion& region, bool abortOnHit) const;
    /// Of the points, transformed when `tm` is given.
    Box3 boundingBox(const Matrix3* tm) const;

  private:
    struct Line {
        std::vector<Point3> points;
        bool closed;
    };

    /// Calls `visit(a, b)` for each stretch between two points until it answers false.
    template <class Visit>
    void forEachSegment(Visit visit) const;

    std::vector<Line> lines_;
};

}  // namespace maxhost
