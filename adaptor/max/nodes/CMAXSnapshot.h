#pragma once

#include "adaptor/max/nodes/CMAXNode.h"

namespace qvo::zmx::adaptor::max {

/// A host node's transform at one moment. Reads and writes go straight to the host node; one that is gone
/// reads as the identity and cannot be written. A local transform is in the parent's space, in host units; at
/// the top level it is the world transform.
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
    /// Sets the node's transform, given in host space, and tells its dependents; the result of telling them.
    int setHostTransform(INode& target, const Matrix4& transform) const;
};

}  // namespace qvo::zmx::adaptor::max
