#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "apps/headless/CoreSpace.h"
#include "apps/headless/Joint.h"

namespace headless {

/// How the joints of the open scene move, recorded at every clip frame: the scene's time is run through them.
class Playback {
  public:
    /// Told how far a recording is: frames done, frames in all.
    using Watcher = std::function<void(std::size_t, std::size_t)>;

    /// Sets the host's time to each frame in turn and back to the start.
    static Playback record(Interface& host, const Watcher& watcher);

    const std::vector<std::string>& names() const { return names_; }
    /// Ticks of the clip frames: the union of the joints' key times.
    const std::vector<TimeValue>& times() const { return times_; }
    const CorePoint& position(std::size_t frame, std::size_t joint) const {
        return positions_[frame * names_.size() + joint];
    }

    /// Same joints, same times, and every world transform equal to the last bit, on the frames and halfway
    /// between them.
    bool equals(const Playback& other) const;
    /// One line about the first thing in which `other` differs.
    std::string differenceFrom(const Playback& other) const;

    /// Index of the joint that covers the longest way, in core space. There must be a joint.
    std::size_t liveliestJoint() const;

  private:
    std::vector<std::string> names_;
    std::vector<TimeValue> times_;
    std::vector<CorePoint> positions_;
    std::uint64_t fingerprint_ = 0xcbf29ce484222325u;  // of all transforms that were seen
};

}  // namespace headless
