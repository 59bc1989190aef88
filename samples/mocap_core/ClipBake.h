#pragma once

#include <cstddef>
#include <vector>

#include "core/AdaptorInterface.h"
#include "samples/mocap_core/FrameGrid.h"
#include "samples/mocap_core/SceneGrid.h"
#include "samples/mocap_core/Take.h"
#include "samples/mocap_core/bvh/Clip.h"

namespace qvo::zmx::mocap {

/// Brings a clip into the scene: one helper node per joint, the frame grid and range that the clip needs, and
/// a key for every joint on every frame. To be run inside an undo group; when run() throws, the caller
/// cancels the group and so undoes what was done.
class ClipBake {
  public:
    /// Refers to all of them. `take` becomes the owner and listener of the nodes.
    ClipBake(core::AdaptorInterface& adaptor, SceneGrid& sceneGrid, const Clip& clip, const FrameGrid& grid,
             Take& take)
        : adaptor_(adaptor), sceneGrid_(sceneGrid), clip_(clip), grid_(grid), take_(take) {}

    /// `range` is what the animation range shall be, seconds. Returns the number of keys written. Throws
    /// std::runtime_error. Cost: linear in joints x frames.
    std::size_t run(core::AdaptorInterface::TimeRange range);

  private:
    void createNodes();
    std::size_t writeKeys();
    void writeKey(std::size_t joint, std::size_t frame, double seconds, const Matrix4& world);

    core::AdaptorInterface& adaptor_;
    SceneGrid& sceneGrid_;
    const Clip& clip_;
    const FrameGrid& grid_;
    Take& take_;
    std::vector<core::CoreNode*> nodes_;  // in the clip's order; the adaptor's
};

}  // namespace qvo::zmx::mocap
