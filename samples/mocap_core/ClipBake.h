#pragma once

#include <cstddef>
#include <vector>

#include "core/AdaptorInterface.h"
#include "samples/mocap_core/FrameGrid.h"
#include "samples/mocap_core/bvh/Clip.h"

namespace qvo::zmx::mocap {

/// Writes a clip's motion: a key for every joint on every frame. To be run inside an undo group and on the
/// grid's multiplier; when run() throws, the caller cancels the group and so undoes what was done.
class ClipBake {
  public:
    /// Refers to all of them. `nodes`: one for each joint, in the clip's order.
    ClipBake(core::AdaptorInterface& adaptor, const Clip& clip, const FrameGrid& grid,
             const std::vector<core::CoreNode*>& nodes)
        : adaptor_(adaptor), clip_(clip), grid_(grid), nodes_(nodes) {}

    /// `metresPerUnit`: meters per clip unit. Returns the number of keys written. Throws std::runtime_error.
    /// Cost: linear in joints x frames.
    std::size_t run(double metresPerUnit);

  private:
    void writeKey(std::size_t joint, std::size_t frame, double seconds, const Matrix4& world);

    core::AdaptorInterface& adaptor_;
    const Clip& clip_;
    const FrameGrid& grid_;
    const std::vector<core::CoreNode*>& nodes_;
};

}  // namespace qvo::zmx::mocap
