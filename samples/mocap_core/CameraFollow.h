#pragma once

#include <string>
#include <vector>

#include "core/AdaptorInterface.h"
#include "samples/mocap_core/FrameGrid.h"
#include "samples/mocap_core/SceneGrid.h"
#include "samples/mocap_core/Take.h"
#include "util/CMesh.h"

namespace qvo::zmx::mocap {

/// Lets a camera follow a take: it stands in front of the place where the take begins, turns to the first
/// joint (the hips) on every frame, and narrows or widens its field of view so that the figure keeps its size
/// in the picture. To be used inside an undo group, which the caller cancels when an operation throws
/// (std::runtime_error).
class CameraFollow {
  public:
    CameraFollow(core::AdaptorInterface& adaptor, SceneGrid& grid, Take& take)
        : adaptor_(adaptor), grid_(grid), take_(take) {}

    /// `view`: a view of the camera, which becomes one of the take's nodes. It stays the caller's.
    void follow(core::CoreNode& view);

  private:
    /// Where the camera stands, and what it looks at; core space, meters.
    struct Setup {
        util::Point3d eye;
        double figureSize;
    };

    core::CoreNode& claim(core::CoreNode& view);
    Setup setUp() const;
    void writeKeys(core::CoreNode& camera, const Setup& setup, const FrameGrid& grid, std::size_t frames);
    util::Point3d hipsAt(double seconds) const;

    core::AdaptorInterface& adaptor_;
    SceneGrid& grid_;
    Take& take_;
};

}  // namespace qvo::zmx::mocap
