#pragma once

#include <inode.h>

#include <vector>

#include "maxhost/src/viewport/WorldPainter.h"

namespace maxhost {

/// The way that the top-level joints take over the ground.
class MotionTrail {
  public:
    /// From the first to the last of `times`, which must not be empty; any order.
    MotionTrail(const std::vector<INode*>& nodes, const std::vector<TimeValue>& times);

    /// The way up to `time` is drawn stronger than the rest. Joints that keep their place leave none.
    void draw(WorldPainter& painter, TimeValue time) const;

  private:
    using Path = std::vector<Point3>;

    std::vector<TimeValue> times_;
    std::vector<Path> paths_;  // one a joint, one point a time
};

}  // namespace maxhost
