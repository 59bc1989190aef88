#include "maxhost/src/viewport/WorldPainter.h"

#include <algorithm>

namespace maxhost {

namespace {

/// A corner on its way to the picture.
struct Corner {
    ViewPoint at;
    LinearColor color;
};

Corner between(const Corner& a, const Corner& b, double nearest) {
    const double part = (nearest - a.at.distance) / (b.at.distance - a.at.distance);
    const auto weight = static_cast<float>(part);
    return {{a.at.x + part * (b.at.x - a.at.x), a.at.y + part * (b.at.y - a.at.y), nearest},
            a.color * (1 - weight) + b.color * weight};
}

/// Keeps the part of a triangle that lies beyond `nearest`: up to four corners in `kept`; returns how many.
int clip(const Corner (&corners)[3], double nearest, Corner (&kept)[4]) {
    int count = 0;
    for (int i = 0; i < 3; ++i) {
        const Corner &a = corners[i], &b = corners[(i + 1) % 3];
        const bool aIn = a.at.distance >= nearest, bIn = b.at.distance >= nearest;
        if (aIn) kept[count++] = a;
        if (aIn != bIn) kept[count++] = between(a, b, nearest);
    }
    return count;
}

}  // namespace

void WorldPainter::line(const Point3& a, const Point3& b, double width, const LinearColor& color,
                        float coverage) {
    Corner from{camera_.toView(a), color}, to{camera_.toView(b), color};
    const double nearest = camera_.nearest();
    if (from.at.distance < nearest && to.at.distance < nearest) return;
    if (from.at.distance < nearest) from = between(from, to, nearest);
    if (to.at.distance < nearest) to = between(from, to, nearest);
    rasterizer_.line(camera_.toScreen(from.at), camera_.toScreen(to.at), width, color, coverage);
}

void WorldPainter::triangle(const Point3 (&corners)[3], const LinearColor (&colors)[3]) {
    Corner all[3], kept[4];
    for (int i = 0; i < 3; ++i)
        all[i] = {camera_.toView(corners[i]), colors[i]};
    const int count = clip(all, camera_.nearest(), kept);
    for (int i = 2; i < count; ++i) {
        const ScreenPoint points[3] = {camera_.toScreen(kept[0].at), camera_.toScreen(kept[i - 1].at),
                                       camera_.toScreen(kept[i].at)};
        rasterizer_.triangle(points, {kept[0].color, kept[i - 1].color, kept[i].color});
    }
}

void WorldPainter::ball(const Point3& centre, double radius, double leastPixels, const LinearColor& color) {
    const ViewPoint view = camera_.toView(centre);
    if (view.distance - radius < camera_.nearest()) return;
    const double pixels = std::max(leastPixels, radius * camera_.pixelsPerUnit(view.distance));
    const ScreenPoint screen = camera_.toScreen(view);
    const double front = 1 / (view.distance - radius);
    rasterizer_.ball(screen, pixels, front - screen.nearness, color);
}

bool WorldPainter::locate(const Point3& world, ScreenPoint& screen) const {
    const ViewPoint view = camera_.toView(world);
    if (!(view.distance >= camera_.nearest())) return false;
    screen = camera_.toScreen(view);
    return true;
}

}  // namespace maxhost
