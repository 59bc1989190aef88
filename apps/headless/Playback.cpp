#include "apps/headless/Playback.h"

#include <algorithm>
#include <cstring>

namespace headless {

namespace {

std::uint64_t mixed(std::uint64_t fingerprint, const Matrix3& transform) {
    const MRow* rows = transform.GetAddr();
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 3; ++column) {
            const float value = rows[row][column];
            std::uint32_t bits;
            std::memcpy(&bits, &value, sizeof bits);
            fingerprint = (fingerprint ^ bits) * 0x100000001b3u;
        }
    }
    return fingerprint;
}

TimeValue halfway(TimeValue a, TimeValue b) {
    return static_cast<TimeValue>(a + (static_cast<std::int64_t>(b) - a) / 2);
}

}  // namespace

Playback Playback::record(Interface& host, const Watcher& watcher) {
    Playback result;
    const std::vector<Joint> skeleton = joints(host);
    const double units = unitsPerMetre();
    for (const Joint& joint : skeleton)
        result.names_.push_back(joint.name);
    result.times_ = keyTimes(skeleton);
    const TimeValue before = host.GetTime();
    for (std::size_t frame = 0; frame < result.times_.size(); ++frame) {
        const TimeValue time = result.times_[frame];
        host.SetTime(time);
        for (const Joint& joint : skeleton) {
            const Matrix3 world = joint.node->GetNodeTM(time);
            result.positions_.push_back(corePoint(world.GetTrans(), units));
            result.fingerprint_ = mixed(result.fingerprint_, world);
        }
        if (frame + 1 < result.times_.size()) {
            const TimeValue between = halfway(time, result.times_[frame + 1]);
            for (const Joint& joint : skeleton)
                result.fingerprint_ = mixed(result.fingerprint_, joint.node->GetNodeTM(between));
        }
        watcher(frame + 1, result.times_.size());
    }
    host.SetTime(before);
    return result;
}

bool Playback::equals(const Playback& other) const {
    return names_ == other.names_ && times_ == other.times_ && fingerprint_ == other.fingerprint_;
}

std::string Playback::differenceFrom(const Playback& other) const {
    if (names_ != other.names_)
        return std::to_string(names_.size()) + " and " + std::to_string(other.names_.size()) +
               " joints, or other names";
    if (times_ != other.times_) return "keys at other times";
    double worst = 0;
    std::size_t at = 0;
    for (std::size_t i = 0; i < positions_.size(); ++i) {
        const double off = distance(positions_[i], other.positions_[i]);
        if (off > worst) {
            worst = off;
            at = i;
        }
    }
    if (worst == 0) return "rotations, or places between the frames, differ";
    return names_[at % names_.size()] + " is off by " + std::to_string(worst) + " m at frame " +
           std::to_string(at / names_.size());
}

std::size_t Playback::liveliestJoint() const {
    std::size_t liveliest = 0;
    double longest = -1;
    for (std::size_t joint = 0; joint < names_.size(); ++joint) {
        double way = 0;
        for (std::size_t frame = 1; frame < times_.size(); ++frame)
            way += distance(position(frame - 1, joint), position(frame, joint));
        if (way > longest) {
            longest = way;
            liveliest = joint;
        }
    }
    return liveliest;
}

}  // namespace headless
