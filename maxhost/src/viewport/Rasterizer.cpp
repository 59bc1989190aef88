#include "maxhost/src/viewport/Rasterizer.h"

#include <algorithm>
#include <cmath>

namespace maxhost {

namespace {

/// First sample whose middle is not before `position`, inside 0 to `limit`.
int firstSample(double position, int limit) {
    return static_cast<int>(std::ceil(std::clamp(position - 0.5, 0.0, static_cast<double>(limit))));
}

/// Calls `row(y, begin, end)` for the samples of each row whose middles lie in the convex polygon. Middles on
/// an edge belong to the polygon on one side of it only, so shapes that share an edge share no sample.
template <class Row>
void forEachRow(const ScreenPoint* points, int count, int width, int height, Row row) {
    double top = points[0].y, bottom = top;
    for (int i = 0; i < count; ++i) {
        if (!std::isfinite(points[i].x) || !std::isfinite(points[i].y)) return;
        top = std::min(top, points[i].y);
        bottom = std::max(bottom, points[i].y);
    }
    const int end = firstSample(bottom, height);
    for (int y = firstSample(top, height); y < end; ++y) {
        const double middle = y + 0.5;
        double left = width, right = 0;
        for (int i = 0; i < count; ++i) {
            const ScreenPoint &a = points[i], &b = points[(i + 1) % count];
            if ((a.y <= middle) == (b.y <= middle)) continue;
            const double x = a.x + (middle - a.y) / (b.y - a.y) * (b.x - a.x);
            left = std::min(left, x);
            right = std::max(right, x);
        }
        row(y, firstSample(left, width), firstSample(right, width));
    }
}

/// A value that changes evenly over the picture.
struct Plane {
    double atOrigin, perX, perY;
    double at(double x, double y) const { return atOrigin + perX * x + perY * y; }
};

/// The plane that is 1 at `p[corner]` and 0 at the other two. `area` is twice the triangle's signed area.
Plane weight(const ScreenPoint (&p)[3], int corner, double area) {
    const ScreenPoint &b = p[(corner + 1) % 3], &c = p[(corner + 2) % 3];
    return {(b.x * c.y - c.x * b.y) / area, (b.y - c.y) / area, (c.x - b.x) / area};
}

}  // namespace

void Rasterizer::triangle(const ScreenPoint (&corners)[3], const LinearColor (&colors)[3]) {
    const double scale = target_.perPixel();
    ScreenPoint p[3];
    for (int i = 0; i < 3; ++i)
        p[i] = {corners[i].x * scale, corners[i].y * scale, corners[i].nearness};
    const double area = (p[1].x - p[0].x) * (p[2].y - p[0].y) - (p[2].x - p[0].x) * (p[1].y - p[0].y);
    if (area == 0 || !std::isfinite(area)) return;
    const Plane weights[3] = {weight(p, 0, area), weight(p, 1, area), weight(p, 2, area)};
    forEachRow(p, 3, target_.width(), target_.height(), [&](int y, int begin, int end) {
        for (int x = begin; x < end; ++x) {
            double nearness = 0;
            float shares[3];
            for (int i = 0; i < 3; ++i) {
                const double share = weights[i].at(x + 0.5, y + 0.5) * p[i].nearness;
                nearness += share;
                shares[i] = static_cast<float>(share);
            }
            const LinearColor sum = colors[0] * shares[0] + colors[1] * shares[1] + colors[2] * shares[2];
            const auto closeness = static_cast<float>(nearness);
            if (closeness > 0) target_.put(x, y, closeness, sum * (1 / closeness), 1);
        }
    });
}

void Rasterizer::line(const ScreenPoint& from, const ScreenPoint& to, double width, const LinearColor& color,
                      float coverage) {
    const double scale = target_.perPixel();
    const ScreenPoint a{from.x * scale, from.y * scale, from.nearness};
    const ScreenPoint b{to.x * scale, to.y * scale, to.nearness};
    const double dx = b.x - a.x, dy = b.y - a.y, length = std::hypot(dx, dy);
    if (length == 0 || !std::isfinite(length)) return;
    const double reach = width * scale / 2;
    const double acrossX = -dy / length * reach, acrossY = dx / length * reach;
    const ScreenPoint outline[4] = {{a.x + acrossX, a.y + acrossY, 0},
                                    {b.x + acrossX, b.y + acrossY, 0},
                                    {b.x - acrossX, b.y - acrossY, 0},
                                    {a.x - acrossX, a.y - acrossY, 0}};
    const double rise = (b.nearness - a.nearness) / (length * length);
    forEachRow(outline, 4, target_.width(), target_.height(), [&](int y, int begin, int end) {
        for (int x = begin; x < end; ++x) {
            const double along = (x + 0.5 - a.x) * dx + (y + 0.5 - a.y) * dy;
            target_.put(x, y, static_cast<float>(a.nearness + along * rise), color, coverage);
        }
    });
}

void Rasterizer::ball(const ScreenPoint& centre, double radius, double depth, const LinearColor& color) {
    const double scale = target_.perPixel(), r = radius * scale;
    const double cx = centre.x * scale, cy = centre.y * scale;
    if (!std::isfinite(cx) || !std::isfinite(cy) || !(r > 0)) return;
    const int end = firstSample(cy + r, target_.height());
    for (int y = firstSample(cy - r, target_.height()); y < end; ++y) {
        const double v = (y + 0.5 - cy) / r, half = std::sqrt(std::max(0.0, 1 - v * v)) * r;
        const int rowEnd = firstSample(cx + half, target_.width());
        for (int x = firstSample(cx - half, target_.width()); x < rowEnd; ++x) {
            const double u = (x + 0.5 - cx) / r, front = std::sqrt(std::max(0.0, 1 - u * u - v * v));
            const double light = 0.35 + 0.75 * std::max(0.0, -0.45 * u - 0.6 * v + 0.66 * front);
            target_.put(x, y, static_cast<float>(centre.nearness + depth * front),
                        color * static_cast<float>(light), 1);
        }
    }
}

}  // namespace maxhost
