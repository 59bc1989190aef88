#pragma once

#include <inode.h>

#include <vector>

#include "maxhost/src/viewport/WorldPainter.h"

namespace maxhost {

/// Joints as balls and the links between them as bones, in the nodes' wire colours.
class SkeletonDrawing {
  public:
    /// `figure`: size of the whole at one moment, system units; joints and bones keep to a part of it.
    SkeletonDrawing(WorldPainter& painter, double figure) : painter_(painter), figure_(figure) {}

    /// Shadows straight down on the ground, in one opaque tone; only of what stands above it.
    void drawShadows(const std::vector<INode*>& nodes, TimeValue time);
    void draw(const std::vector<INode*>& nodes, TimeValue time);

  private:
    /// Calls `triangle(corners)` for each side of a bone.
    template <class Triangle>
    void forEachSide(const Point3& from, const Point3& to, Triangle triangle) const;
    void drawBone(const Point3& from, const Point3& to, const LinearColor& color);
    double jointRadius() const { return figure_ * 0.014; }

    WorldPainter& painter_;
    double figure_;
};

}  // namespace maxhost
