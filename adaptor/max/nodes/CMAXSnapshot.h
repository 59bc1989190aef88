#pragma once

#include "adaptor/max/nodes/CMAXNode.h"

namespace qvo::zmx::adaptor::max {

/// A host node's transform at one moment. Reads and writes go straight to the host node; one that is gone
/// reads as the identity and cannot be written.
class CMAXNode::CMAXSnapshot : public core::CoreNode::Snapshot {
  public:
    explicit CMAXSnapshot(CMAXNode& from) : wrapper(&from), owner(from.owner), current(&from) {}

    int setLocalTransform(const Matrix4& transform) override;
    Matrix4 getLocalTransform() override;
    Matrix4 getWorldTransform() override;
    int setWorldTransform(const Matrix4& transform) override;
    double getTime() override { return time; }

    CMAXNode* wrapper;      ///< null once the wrapper is gone
    core::Owner* owner;     ///< the wrapper's owner when the snapshot was made
    CMAXNode* current;      ///< the wrapper of the present acquisition; null once it is gone
    bool acquired = false;  ///< lent to the core
    TimeValue ticks = 0;
    double time = 0.0;  ///< seconds
    HostNodeRef node;   ///< of the present acquisition

  private:
    /// What a local transform is relative to, in host space: the parent's transform, or the core's base at
    /// the top level.
    Matrix4 reference(INode& target) const;

    /// Sets the node's transform, given in host space, and tells its dependents; the result of telling them.
    int setHostTransform(INode& target, const Matrix4& transform) const;
};

}  // namespace qvo::zmx::adaptor::max
