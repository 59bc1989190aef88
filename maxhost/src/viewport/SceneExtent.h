#pragma once

#include <maxapi.h>

#include <vector>

namespace maxhost {

/// How much room a scene takes at the moments that are shown.
class SceneExtent {
  public:
    /// `view` is what objects are asked about their boxes for; it need not be framed yet.
    SceneExtent(const std::vector<INode*>& nodes, const std::vector<TimeValue>& times, ViewExp& view);

    /// Everything that must be seen: nodes, the corners of what they show, and for what stands near the
    /// ground the places below.
    const std::vector<Point3>& points() const { return points_; }
    /// Box of all that at all moments; empty when there is nothing.
    const Box3& box() const { return box_; }
    /// The longest side of the box of a single moment, system units; 1 when there is no such length.
    double figure() const { return figure_ > 0 ? figure_ : 1; }

  private:
    static std::vector<Point3> pointsAt(const std::vector<INode*>& nodes, TimeValue time, ViewExp& view);
    void addMoment(std::vector<Point3> moment);

    std::vector<Point3> points_;
    Box3 box_;
    double figure_ = 0;
};

}  // namespace maxhost
