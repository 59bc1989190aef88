#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "samples/mocap_core/bvh/Clip.h"
#include "util/CMesh.h"

namespace qvo::zmx::mocap {

/// Which half of the body a joint is on.
enum class Side { centre, left, right };

/// How bones are drawn: as edges they leave a model beside them to be seen. Those are thicker, to stand
/// around what a host draws between joints of its own accord.
enum class Bones { solid, edges };

/// A colour, 0 to 1.
struct Color {
    float red, green, blue;
};

/// How the joints of a clip are shown: as bones of eight faces, each from its joint to the first joint or end
/// site below it, coloured by side.
///
/// A shape counts in its node's own space. The core places joints without scale in meters and Y up, so the
/// bones are in meters and in the joint's own axes.
class JointLook {
  public:
    /// Keeps a reference: `clip` must outlive the object. Cost: linear in the joints.
    JointLook(const Clip& clip, double metresPerUnit, Bones bones);

    /// Joints with nothing below them, or nothing at a distance, get a small ball of eight faces.
    util::CMesh shape(std::size_t joint) const;

    /// Told by names: a joint is left or right when the clip has its counterpart, which is called the same
    /// with "left" and "right" (or a first or last letter "l" and "r") exchanged.
    Side side(std::size_t joint) const { return sides_[joint]; }

    Bones bones() const { return bones_; }

    Color color(std::size_t joint) const;

  private:
    Bones bones_;
    std::vector<util::Point3d> tips_;  // meters, relative to the joint
    std::vector<Side> sides_;
    double ballRadius_;
};

}  // namespace qvo::zmx::mocap
