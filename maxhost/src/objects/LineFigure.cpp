#include "maxhost/src/objects/LineFigure.h"

#include "maxhost/src/objects/HitTally.h"

namespace maxhost {

namespace {

void sendSegment(GraphicsWindow& window, const Point3& a, const Point3& b) {
    Point3 ends[2] = {a, b};
    window.polyline(2, ends, nullptr, FALSE, nullptr);
}

}  // namespace

template <class Visit>
void LineFigure::forEachSegment(Visit visit) const {
    for (const Line& line : lines_) {
        const size_t count = line.points.size();
        for (size_t i = 0; i + 1 < count || (line.closed && i < count); ++i)
            if (!visit(line.points[i], line.points[(i + 1) % count])) return;
    }
}

void LineFigure::draw(GraphicsWindow& window) const {
    forEachSegment([&](const Point3& a, const Point3& b) {
        sendSegment(window, a, b);
        return true;
    });
}

bool LineFigure::select(GraphicsWindow& window, HitRegion& region, bool abortOnHit) const {
    HitTally tally(window, region, abortOnHit);
    forEachSegment(
        [&](const Point3& a, const Point3& b) { return tally.add([&] { sendSegment(window, a, b); }); });
    return tally.hit();
}

Box3 LineFigure::boundingBox(const Matrix3* tm) const {
    Box3 box;
    for (const Line& line : lines_)
        for (const Point3& point : line.points)
            box += tm == nullptr ? point : point * *tm;
    return box;
}

}  // namespace maxhost
