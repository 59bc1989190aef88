#pragma once

#include <algorithm>

#include "adaptor/max/nodes/CMAXNode.h"

namespace qvo::zmx::adaptor::max {

/// The curves of a host shape object at one moment; points and lengths in object space and system units.
class CMAXNode::CMAXSnapshot_Shape : public core::CoreNode::Snapshot_Shape {
  public:
    explicit CMAXSnapshot_Shape(CMAXNode& from) : wrapper(&from) {}

    int numberOfCurves() override;
    int getCurve() override { return curve; }
    int setCurve(int index) override;
    double getCurveLength() override;
    util::Point3d getPoint(double parameter) override;
    util::Point3d getTangent(double parameter) override;

    CMAXNode* wrapper;  ///< null once the wrapper is gone
    bool acquired = false;
    ShapeObject* object = nullptr;  ///< the node's object at the acquisition; not owned
    TimeValue ticks = 0;
    double time = 0.0;  ///< seconds
    int curve = 0;      ///< kept from one acquisition to the next
    HostNodeRef node;

  private:
    /// The object, or null when it is not the node's any more.
    ShapeObject* usableObject() const { return node.ifStillItsObject(object); }

    /// The selected curve, or the last one when there are fewer by now; -1 when there is none.
    int usableCurve(ShapeObject& shape) const { return std::min(curve, shape.NumberOfCurves() - 1); }
};

}  // namespace qvo::zmx::adaptor::max
