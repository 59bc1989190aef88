#include "maxhost/src/viewport/Ground.h"

#include <algorithm>
#include <cmath>

#include "maxhost/src/viewport/Palette.h"

namespace maxhost {

namespace {

constexpr int kRings = 24, kSpokes = 72;
constexpr double kFullTurn = 6.283185307179586;

/// The largest of 1, 2 and 5 times a power of ten that is not above `length`.
double roundLength(double length) {
    const double power = std::pow(10.0, std::floor(std::log10(length)));
    return power * (length >= 5 * power ? 5 : length >= 2 * power ? 2 : 1);
}

}  // namespace

Ground::Ground(const SceneExtent& extent) : spacing_(roundLength(extent.figure() / 4)) {
    const Box3& box = extent.box();
    double reach = extent.figure();
    if (!box.IsEmpty()) {
        centreX_ = box.Center().x;
        centreY_ = box.Center().y;
        reach = std::hypot(box.Width().x, box.Width().y) / 2;
    }
    radius_ = std::max(reach * 1.9, extent.figure() * 1.5);
    spacing_ = std::max(spacing_, roundLength(radius_ / 20));
}

double Ground::strength(double x, double y) const {
    const double part = std::min(1.0, std::hypot(x - centreX_, y - centreY_) / radius_);
    return (1 - part * part) * (1 - part * part);
}

void Ground::drawGrid(WorldPainter& painter) const {
    const int lines = static_cast<int>(radius_ / spacing_) + 1;
    const int firstX = static_cast<int>(std::lround(centreX_ / spacing_));
    const int firstY = static_cast<int>(std::lround(centreY_ / spacing_));
    for (int i = -lines; i <= lines; ++i) {
        drawGridLine(painter, firstX + i, false);
        drawGridLine(painter, firstY + i, true);
    }
}

void Ground::drawPlate(WorldPainter& painter) const {
    const LinearColor rim(palette::kBackground), middle(palette::kGround);
    const auto at = [&](int ring, int spoke) {
        const double r = radius_ * ring / kRings, a = kFullTurn * spoke / kSpokes;
        return Point3(centreX_ + r * std::cos(a), centreY_ + r * std::sin(a), 0.0);
    };
    const auto shade = [&](int ring) {
        const auto s = static_cast<float>(strength(centreX_ + radius_ * ring / kRings, centreY_));
        return rim * (1 - s) + middle * s;
    };
    for (int ring = 0; ring < kRings; ++ring) {
        const LinearColor inner = shade(ring), outer = shade(ring + 1);
        for (int spoke = 0; spoke < kSpokes; ++spoke) {
            const Point3 a = at(ring, spoke), b = at(ring + 1, spoke), c = at(ring + 1, spoke + 1);
            painter.triangle({a, b, c}, {inner, outer, outer});
            painter.triangle({a, c, at(ring, spoke + 1)}, {inner, outer, inner});
        }
    }
}

void Ground::drawGridLine(WorldPainter& painter, int index, bool alongX) const {
    constexpr int kPieces = 48;
    const double fixed = index * spacing_;
    const double off = fixed - (alongX ? centreY_ : centreX_);
    if (std::fabs(off) >= radius_) return;
    const double half = std::sqrt(radius_ * radius_ - off * off);
    const double middle = alongX ? centreX_ : centreY_;
    const bool main = index % 5 == 0;
    const auto at = [&](double along) {
        return alongX ? Point3(along, fixed, 0.0) : Point3(fixed, along, 0.0);
    };
    for (int i = 0; i < kPieces; ++i) {
        const double from = middle + half * (2.0 * i / kPieces - 1);
        const double to = middle + half * (2.0 * (i + 1) / kPieces - 1);
        const Point3 between = at((from + to) / 2);
        const double coverage = strength(between.x, between.y) * (main ? 0.5 : 0.28);
        painter.line(at(from), at(to), main ? 1.6 : 1.0, LinearColor(palette::kGrid),
                     static_cast<float>(coverage));
    }
}

}  // namespace maxhost
