#include "maxhost/src/viewport/SceneExtent.h"

#include <algorithm>
#include <cmath>

namespace maxhost {

namespace {

void addIfFinite(std::vector<Point3>& points, const Point3& p) {
    if (std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z)) points.push_back(p);
}

Point3 corner(const Box3& box, int which) {
    return Point3(which & 1 ? box.pmax.x : box.pmin.x, which & 2 ? box.pmax.y : box.pmin.y,
                  which & 4 ? box.pmax.z : box.pmin.z);
}

}  // namespace

SceneExtent::SceneExtent(const std::vector<INode*>& nodes, const std::vector<TimeValue>& times,
                         ViewExp& view) {
    for (const TimeValue time : times)
        addMoment(pointsAt(nodes, time, view));
}

std::vector<Point3> SceneExtent::pointsAt(const std::vector<INode*>& nodes, TimeValue time, ViewExp& view) {
    std::vector<Point3> moment;
    for (INode* node : nodes) {
        const Matrix3 world = node->GetObjectTM(time);
        addIfFinite(moment, world.GetTrans());
        Box3 shown;
        if (Object* object = node->EvalWorldState(time).obj)
            object->GetLocalBoundBox(time, node, &view, shown);
        if (shown.IsEmpty()) continue;
        for (int i = 0; i < 8; ++i)
            addIfFinite(moment, corner(shown, i) * world);
    }
    return moment;
}

void SceneExtent::addMoment(std::vector<Point3> moment) {
    if (moment.empty()) return;
    Box3 room;
    for (const Point3& p : moment)
        room += p;
    const Point3 width = room.Width();
    const float longest = std::max({width.x, width.y, width.z});
    figure_ = std::max(figure_, static_cast<double>(longest));
    if (room.pmin.z <= 2 * longest && room.pmax.z >= 0) {
        const std::size_t count = moment.size();
        for (std::size_t i = 0; i < count; ++i)
            moment.emplace_back(moment[i].x, moment[i].y, 0.0f);
    }
    for (const Point3& p : moment)
        box_ += p;
    points_.insert(points_.end(), moment.begin(), moment.end());
}

}  // namespace maxhost
