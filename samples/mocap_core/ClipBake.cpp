#include "samples/mocap_core/ClipBake.h"

#include <stdexcept>
#include <string>

#include "samples/mocap_core/BorrowedSnapshot.h"
#include "samples/mocap_core/KeyBatch.h"
#include "samples/mocap_core/bvh/Skeleton.h"

namespace qvo::zmx::mocap {

std::size_t ClipBake::run(double metresPerUnit) {
    const KeyBatch batch(adaptor_);
    const Skeleton skeleton(clip_, metresPerUnit);
    std::vector<Matrix4> world;
    for (std::size_t frame = 0; frame < clip_.frameCount(); ++frame) {
        const double seconds = grid_.secondsOf(frame);
        skeleton.evaluate(frame, world);
        // Parents first: a child's key is relative to where its parent is at that moment.
        for (std::size_t joint = 0; joint < nodes_.size(); ++joint)
            writeKey(joint, frame, seconds, world[joint]);
    }
    return clip_.frameCount() * nodes_.size();
}

void ClipBake::writeKey(std::size_t joint, std::size_t frame, double seconds, const Matrix4& world) {
    if (BorrowedSnapshot(*nodes_[joint], seconds).setWorldTransform(world)) return;
    throw std::runtime_error("the host refused frame " + std::to_string(frame + 1) + " of joint \"" +
                             clip_.joints[joint].name + "\"");
}

}  // namespace qvo::zmx::mocap
