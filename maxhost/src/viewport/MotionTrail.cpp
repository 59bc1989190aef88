#include "maxhost/src/viewport/MotionTrail.h"

#include <algorithm>

#include "maxhost/src/viewport/Palette.h"
#include "maxhost/src/viewport/SceneNodes.h"

namespace maxhost {

MotionTrail::MotionTrail(const std::vector<INode*>& nodes, const std::vector<TimeValue>& times) {
    constexpr std::int64_t kSteps = 240;
    const auto [first, last] = std::minmax_element(times.begin(), times.end());
    const std::int64_t start = *first, span = *last - start;
    for (std::int64_t i = 0; i <= kSteps; ++i)
        times_.push_back(static_cast<TimeValue>(start + span * i / kSteps));
    for (INode* node : nodes) {
        if (!isJoint(*node) || parentJoint(*node) != nullptr) continue;
        Path& path = paths_.emplace_back();
        for (const TimeValue time : times_) {
            const Point3 place = node->GetNodeTM(time).GetTrans();
            path.emplace_back(place.x, place.y, 0.0f);
        }
    }
}

void MotionTrail::draw(WorldPainter& painter, TimeValue time) const {
    const LinearColor color(palette::kTrail);
    for (const Path& path : paths_)
        for (std::size_t i = 1; i < path.size(); ++i)
            painter.line(path[i - 1], path[i], 1.8, color, times_[i] <= time ? 0.75f : 0.22f);
}

}  // namespace maxhost
