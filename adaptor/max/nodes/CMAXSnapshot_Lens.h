#pragma once

#include "adaptor/max/nodes/CMAXNode.h"

namespace qvo::zmx::adaptor::max {

/// The lens of a host camera at one moment.
class CMAXNode::CMAXSnapshot_Lens : public core::CoreNode::Snapshot_Lens {
  public:
    explicit CMAXSnapshot_Lens(CMAXNode& from) : wrapper(&from) {}

    void setFieldOfView(double degrees) override;
    double getFieldOfView() override;
    int getFieldOfViewType() override;
    void setFieldOfViewType(int type) override;
    void setTargetDistance(double distance) override;
    double getTargetDistance() override;
    double getTime() override { return time; }
    Matrix4 getLensTransform() override { return kIdentityMatrix4; }

    CMAXNode* wrapper;  ///< null once the wrapper is gone
    bool acquired = false;
    GenCamera* object = nullptr;  ///< the node's object at the acquisition; not owned
    TimeValue ticks = 0;
    double time = 0.0;  ///< seconds
    HostNodeRef node;

  private:
    /// The object, or null when it is not the node's any more.
    GenCamera* usableObject() const { return node.ifStillItsObject(object); }
};

}  // namespace qvo::zmx::adaptor::max
