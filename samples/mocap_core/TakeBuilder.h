#pragma once

#include <cstddef>
#include <string>

#include "core/AdaptorInterface.h"
#include "samples/mocap_core/PreparedClip.h"
#include "samples/mocap_core/SceneGrid.h"
#include "samples/mocap_core/SkeletonNodes.h"
#include "samples/mocap_core/TakeSet.h"

namespace qvo::zmx::mocap {

/// Makes takes and changes them: nodes, keys, frame grid, animation range, names. To be used inside an undo
/// group; when an operation throws (std::runtime_error, FileError), the caller cancels the group and so
/// undoes what was done.
class TakeBuilder {
  public:
    /// What was baked so far.
    struct Counts {
        std::size_t joints = 0;
        std::size_t frames = 0;
        std::size_t keys = 0;
    };

    /// `bones`: of the joints that get a node.
    TakeBuilder(core::AdaptorInterface& adaptor, TakeSet& takes, SceneGrid& grid, Bones bones)
        : adaptor_(adaptor), takes_(takes), grid_(grid), bones_(bones) {}

    /// A new take of one clip, which is called as its file without extension, or like it.
    Take& load(const PreparedClip& clip);

    /// Puts a clip after the take's last frame. The clip must have the take's joints.
    void extend(Take& take, PreparedClip& clip);

    /// Reads the take's clips again and writes their keys in place of the present ones. Joints whose nodes
    /// are gone get new ones.
    void bakeAgain(Take& take);

    /// The take is called `name` from now on, or like it where the scene has that name.
    void rename(Take& take, const std::string& name);

    const Counts& counts() const { return counts_; }

  private:
    void bake(Take& take, const PreparedClip& clip);
    core::AdaptorInterface::TimeRange rangeWith(const FrameGrid& grid) const;

    core::AdaptorInterface& adaptor_;
    TakeSet& takes_;
    SceneGrid& grid_;
    Bones bones_;
    Counts counts_;
};

}  // namespace qvo::zmx::mocap
