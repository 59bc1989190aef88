#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace qvo::zmx::mocap {

/// What one number of a frame drives. Positions are in clip units, rotations in degrees.
enum class Channel { PositionX, PositionY, PositionZ, RotationX, RotationY, RotationZ };

inline bool isPosition(Channel channel) {
    return channel <= Channel::PositionZ;
}

/// One joint of the skeleton. Right-handed, Y up, clip units.
struct Joint {
    std::string name;                ///< not empty, unique within the clip
    int parent = -1;                 ///< index of an earlier joint, -1 for a root
    std::array<double, 3> offset{};  ///< rest position relative to the parent
    std::vector<Channel> channels;   ///< in the order written, no position twice
    std::size_t firstChannel = 0;    ///< index of the joint's first number within a frame
};

/// The tip of a chain: a place, not a joint, so nothing moves it.
struct EndSite {
    int joint = -1;                  ///< index of the joint it belongs to
    std::array<double, 3> offset{};  ///< relative to the joint, clip units
};

/// A motion-capture clip as its file states it.
/// Invariants: at least one joint, one channel and one frame; parents stand before their children;
/// `values` holds frameCount() x channelCount finite numbers; frameTime is finite and above 0.
class Clip {
  public:
    std::vector<Joint> joints;
    std::vector<EndSite> endSites;
    std::size_t channelCount = 0;  ///< numbers per frame
    double frameTime = 0.0;        ///< seconds between two frames, as printed in the file
    std::vector<double> values;    ///< all frames, one after the other
    bool surplusFrame = false;     ///< the file held one frame more than it announced; it is left out

    std::size_t frameCount() const { return channelCount == 0 ? 0 : values.size() / channelCount; }
    /// The `channelCount` numbers of frame `index`, which must be below frameCount().
    const double* frame(std::size_t index) const { return values.data() + index * channelCount; }
};

}  // namespace qvo::zmx::mocap
