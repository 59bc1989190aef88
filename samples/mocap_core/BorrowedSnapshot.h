#pragma once

#include "core/CoreNode.h"

namespace qvo::zmx::mocap {

/// A node's transform at one moment, given back at the end of its life.
class BorrowedSnapshot {
  public:
    BorrowedSnapshot(core::CoreNode& node, double seconds)
        : node_(node), snapshot_(node.acquireSnapshot(seconds)) {}

    BorrowedSnapshot(const BorrowedSnapshot&) = delete;
    BorrowedSnapshot& operator=(const BorrowedSnapshot&) = delete;

    ~BorrowedSnapshot() {
        if (snapshot_) node_.releaseSnapshot(snapshot_);
    }

    /// False when the host refuses, as it does when the node has left the scene.
    bool setWorldTransform(const Matrix4& world) {
        return snapshot_ && snapshot_->setWorldTransform(world) != 0;
    }
    bool setLocalTransform(const Matrix4& local) {
        return snapshot_ && snapshot_->setLocalTransform(local) != 0;
    }

    /// The identity when the node has left the scene.
    Matrix4 worldTransform() { return snapshot_ ? snapshot_->getWorldTransform() : kIdentityMatrix4; }

  private:
    core::CoreNode& node_;
    core::CoreNode::Snapshot* snapshot_;  // null when the node has left the scene
};

}  // namespace qvo::zmx::mocap
