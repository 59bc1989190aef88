#include "maxhost/src/viewport/PickTest.h"

#include <algorithm>
#include <cmath>

namespace maxhost {

namespace {

double distanceToLine(double x, double y, const ScreenPoint& a, const ScreenPoint& b) {
    const double dx = b.x - a.x, dy = b.y - a.y, square = dx * dx + dy * dy;
    const double along = square == 0 ? 0 : std::clamp(((x - a.x) * dx + (y - a.y) * dy) / square, 0.0, 1.0);
    return std::hypot(a.x + along * dx - x, a.y + along * dy - y);
}

double side(const ScreenPoint& a, const ScreenPoint& b, double x, double y) {
    return (b.x - a.x) * (y - a.y) - (b.y - a.y) * (x - a.x);
}

bool holds(const ScreenPoint (&p)[3], double x, double y) {
    if (side(p[0], p[1], p[2].x, p[2].y) == 0) return false;  // without an inside
    const double s0 = side(p[0], p[1], x, y), s1 = side(p[1], p[2], x, y), s2 = side(p[2], p[0], x, y);
    return (s0 >= 0 && s1 >= 0 && s2 >= 0) || (s0 <= 0 && s1 <= 0 && s2 <= 0);
}

/// Whether part of the line lies in the box (cut by one pair of sides after the other).
bool crossesBox(const ScreenPoint& a, const ScreenPoint& b, const RECT& box) {
    double from = 0, to = 1;
    const auto cut = [&](double start, double change, double low, double high) {
        if (change == 0) return start >= low && start <= high;
        const double first = (low - start) / change, second = (high - start) / change;
        from = std::max(from, std::min(first, second));
        to = std::min(to, std::max(first, second));
        return from <= to;
    };
    const auto [left, right] = std::minmax(box.left, box.right);
    const auto [top, bottom] = std::minmax(box.top, box.bottom);
    return cut(a.x, b.x - a.x, left, right) && cut(a.y, b.y - a.y, top, bottom);
}

}  // namespace

void PickTest::setRegion(const HitRegion* region) {
    active_ = region != nullptr && region->type != FENCE_RGN;
    if (active_) region_ = *region;
}

double PickTest::outside(const ScreenPoint& p) const {
    if (region_.type == CIRCLE_RGN)
        return std::hypot(p.x - region_.circle.x, p.y - region_.circle.y) - region_.circle.r;
    const double x = std::fabs(p.x - (region_.rect.left + region_.rect.right) / 2.0) -
                     std::abs(region_.rect.right - region_.rect.left) / 2.0;
    const double y = std::fabs(p.y - (region_.rect.top + region_.rect.bottom) / 2.0) -
                     std::abs(region_.rect.bottom - region_.rect.top) / 2.0;
    return std::max(x, y);
}

bool PickTest::touches(const ScreenPoint& a, const ScreenPoint& b) const {
    if (region_.type == CIRCLE_RGN)
        return distanceToLine(region_.circle.x, region_.circle.y, a, b) <= region_.circle.r;
    return crossesBox(a, b, region_.rect);
}

bool PickTest::line(const ScreenPoint& a, const ScreenPoint& b) const {
    if (!active_) return false;
    if (region_.type == POINT_RGN) return distanceToLine(region_.pt.x, region_.pt.y, a, b) <= region_.epsilon;
    return region_.crossing ? touches(a, b) : outside(a) <= 0 && outside(b) <= 0;
}

bool PickTest::triangle(const ScreenPoint (&p)[3]) const {
    if (!active_) return false;
    if (region_.type == POINT_RGN || region_.crossing) {
        const POINT middle = region_.type == POINT_RGN    ? region_.pt
                             : region_.type == CIRCLE_RGN ? POINT{region_.circle.x, region_.circle.y}
                                                          : POINT{region_.rect.left, region_.rect.top};
        return holds(p, middle.x, middle.y) || line(p[0], p[1]) || line(p[1], p[2]) || line(p[2], p[0]);
    }
    return outside(p[0]) <= 0 && outside(p[1]) <= 0 && outside(p[2]) <= 0;
}

}  // namespace maxhost
