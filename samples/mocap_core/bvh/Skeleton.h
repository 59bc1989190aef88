#pragma once

#include <cstddef>
#include <vector>

#include "core/Matrix4.h"
#include "samples/mocap_core/bvh/Clip.h"

namespace qvo::zmx::mocap {

/// Where a clip's joints are: world transforms in core space (Y up, meters, row vectors, translation in the
/// fourth row), in double precision.
///
/// A joint's translation relative to its parent is its offset, except that an axis with a position channel
/// takes the channel's number in place of the offset's. Its rotation channels turn about the axes that the
/// earlier ones have already turned: for column vectors R1 x R2 x R3 in the order written, for the row
/// vectors used here the transposed product in the opposite order; an axis may come again. Positions are
/// scaled by the metres per unit; rotations hold no scale.
class Skeleton {
  public:
    /// Keeps a reference: `clip` must outlive the skeleton. `metresPerUnit` is finite and above 0.
    Skeleton(const Clip& clip, double metresPerUnit) : clip_(clip), metresPerUnit_(metresPerUnit) {}

    /// Sets `world` to one matrix per joint, in the clip's order, for frame `frame` (below frameCount()).
    /// Numbers beyond reason may give non-finite matrices. Cost: linear in the joints; no allocation when
    /// `world` has its size already.
    void evaluate(std::size_t frame, std::vector<Matrix4>& world) const;

  private:
    Matrix4 localTransform(const Joint& joint, const double* values) const;

    const Clip& clip_;
    double metresPerUnit_;
};

}  // namespace qvo::zmx::mocap
