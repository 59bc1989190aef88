#include "samples/mocap_core/ClipBake.h"

#include <stdexcept>
#include <string>

#include "samples/mocap_core/KeyBatch.h"
#include "samples/mocap_core/bvh/Skeleton.h"

namespace qvo::zmx::mocap {

namespace {

/// A transform snapshot, given back at the end of its life.
class BorrowedSnapshot {
  public:
    BorrowedSnapshot(core::CoreNode& node, double seconds)
        : node_(node), snapshot_(node.acquireSnapshot(seconds)) {}

    BorrowedSnapshot(const BorrowedSnapshot&) = delete;
    BorrowedSnapshot& operator=(const BorrowedSnapshot&) = delete;

    ~BorrowedSnapshot() {
        if (snapshot_) node_.releaseSnapshot(snapshot_);
    }

    bool setWorldTransform(const Matrix4& world) {
        return snapshot_ && snapshot_->setWorldTransform(world) != 0;
    }

  private:
    core::CoreNode& node_;
    core::CoreNode::Snapshot* snapshot_;  // null when the node has left the scene
};

}  // namespace

std::size_t ClipBake::run(core::AdaptorInterface::TimeRange range) {
    createNodes();
    sceneGrid_.change({grid_.multiplier(), range});
    return writeKeys();
}

void ClipBake::createNodes() {
    nodes_.reserve(clip_.joints.size());
    for (const Joint& joint : clip_.joints) {
        core::CoreNode* parent = joint.parent < 0 ? nullptr : nodes_[static_cast<std::size_t>(joint.parent)];
        core::CoreNode* node = adaptor_.createHelperNode(&take_, joint.name, parent, &take_);
        if (!node) throw std::runtime_error("the host made no node for joint \"" + joint.name + "\"");
        take_.addNode(node);
        nodes_.push_back(node);
    }
}

std::size_t ClipBake::writeKeys() {
    const KeyBatch batch(adaptor_);
    const Skeleton skeleton(clip_, take_.record().metresPerUnit);
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
