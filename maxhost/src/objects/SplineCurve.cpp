#include "maxhost/src/objects/SplineCurve.h"

#include <algorithm>
#include <cmath>

namespace maxhost {

namespace {

CurvePoint wide(const Point3& p) {
    return {p.x, p.y, p.z};
}

CurvePoint minus(const CurvePoint& a, const CurvePoint& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

double lengthOf(const CurvePoint& v) {
    return std::hypot(v.x, v.y, v.z);
}

struct Piece {
    CurvePoint p[4];

    Piece(const SplineKnot& from, const SplineKnot& to)
        : p{wide(from.point), wide(from.out), wide(to.in), wide(to.point)} {}

    CurvePoint at(double u) const {
        const double v = 1 - u, a = v * v * v, b = 3 * v * v * u, c = 3 * v * u * u, d = u * u * u;
        return {a * p[0].x + b * p[1].x + c * p[2].x + d * p[3].x,
                a * p[0].y + b * p[1].y + c * p[2].y + d * p[3].y,
                a * p[0].z + b * p[1].z + c * p[2].z + d * p[3].z};
    }
    /// From the edges between the control points, so that a short piece far away loses no digits.
    CurvePoint velocity(double u) const {
        const double v = 1 - u, a = 3 * v * v, b = 6 * v * u, c = 3 * u * u;
        const CurvePoint e = minus(p[1], p[0]), f = minus(p[2], p[1]), g = minus(p[3], p[2]);
        return {a * e.x + b * f.x + c * g.x, a * e.y + b * f.y + c * g.y, a * e.z + b * f.z + c * g.z};
    }
    /// Length of the line through the control points, which bounds that of the piece.
    double bound() const {
        return lengthOf(minus(p[1], p[0])) + lengthOf(minus(p[2], p[1])) + lengthOf(minus(p[3], p[2]));
    }
};

void makeFinite(Point3& p) {
    for (int i = 0; i < 3; ++i)
        if (!std::isfinite(p[i])) p[i] = 0;
}

double clampedParameter(double parameter) {
    return parameter > 0 ? std::min(parameter, 1.0) : 0;
}

}  // namespace

SplineCurve::SplineCurve(std::vector<SplineKnot> knots, bool closed)
    : knots_(std::move(knots)), closed_(closed), marks_{{0, 0}} {
    if (knots_.empty()) knots_.emplace_back();
    for (SplineKnot& each : knots_) {
        makeFinite(each.point);
        makeFinite(each.in);
        makeFinite(each.out);
    }
    constexpr double kTolerance = 1e-10;
    for (int i = 0; i < pieceCount(); ++i) {
        const double bound = Piece(knot(i), knot(i + 1)).bound();
        measure(i, i + 1, stretch(i, i + 1), 0, kTolerance * bound);
    }
}

SplineCurve SplineCurve::polyline(const std::vector<Point3>& points, bool closed) {
    std::vector<SplineKnot> knots;
    const size_t count = points.size();
    for (size_t i = 0; i < count; ++i) {
        const bool first = i == 0 && !closed, last = i + 1 == count && !closed;
        const Point3& before = points[first ? i : (i + count - 1) % count];
        const Point3& after = points[last ? i : (i + 1) % count];
        const Point3& here = points[i];
        knots.push_back({here, here + (before - here) / 3.0f, here + (after - here) / 3.0f});
    }
    return SplineCurve(std::move(knots), closed);
}

int SplineCurve::pieceCount() const {
    return static_cast<int>(knots_.size()) - (closed_ ? 0 : 1);
}

const SplineKnot& SplineCurve::knot(int i) const {
    return knots_[static_cast<size_t>(i) % knots_.size()];
}

bool SplineCurve::isStraight(int piece) const {
    const Piece of(knot(piece), knot(piece + 1));
    return of.bound() - lengthOf(minus(of.p[3], of.p[0])) <= 1e-6 * of.bound();
}

CurvePoint SplineCurve::at(double place) const {
    if (pieceCount() == 0) return wide(knots_.front().point);
    const int piece = std::min(static_cast<int>(place), pieceCount() - 1);
    return Piece(knot(piece), knot(piece + 1)).at(place - piece);
}

CurvePoint SplineCurve::velocity(double place) const {
    if (pieceCount() == 0) return {};
    const int piece = std::min(static_cast<int>(place), pieceCount() - 1);
    return Piece(knot(piece), knot(piece + 1)).velocity(place - piece);
}

double SplineCurve::stretch(double from, double to) const {
    constexpr double kNodes[4] = {0.1834346424956498, 0.5255324099163290, 0.7966664774136267,
                                  0.9602898564975363};
    constexpr double kWeights[4] = {0.3626837833783620, 0.3137066458778873, 0.2223810344533745,
                                    0.1012285362903763};
    const double middle = (from + to) / 2, half = (to - from) / 2;
    double sum = 0;
    for (int i = 0; i < 4; ++i)
        sum += kWeights[i] * (speed(middle - half * kNodes[i]) + speed(middle + half * kNodes[i]));
    return sum * half;
}

double SplineCurve::speed(double place) const {
    return lengthOf(velocity(place));
}

void SplineCurve::measure(double from, double to, double whole, int depth, double tolerance) {
    constexpr int kDeepest = 24;
    const double middle = (from + to) / 2;
    const double left = stretch(from, middle), right = stretch(middle, to);
    if (depth == kDeepest || std::fabs(left + right - whole) <= tolerance) {
        const double before = marks_.back().length;
        marks_.push_back({middle, before + left});
        marks_.push_back({to, before + left + right});
        return;
    }
    measure(from, middle, left, depth + 1, tolerance);
    measure(middle, to, right, depth + 1, tolerance);
}

double SplineCurve::fromLengthParameter(double parameter) const {
    const double whole = length(), wanted = clampedParameter(parameter) * whole;
    if (!(whole > 0)) return clampedParameter(parameter);
    const auto end = std::lower_bound(marks_.begin() + 1, marks_.end() - 1, wanted,
                                      [](const Mark& mark, double length) { return mark.length < length; });
    const Mark start = *(end - 1);
    double low = start.place, high = end->place, place = (low + high) / 2;
    // Newton's method; where it would leave the stretch in which the place must lie, that is halved.
    for (int i = 0; i < 60; ++i) {
        const double excess = start.length + stretch(start.place, place) - wanted;
        if (std::fabs(excess) <= 1e-14 * whole) break;
        (excess > 0 ? high : low) = place;
        const double next = place - excess / speed(place);
        place = next > low && next < high ? next : (low + high) / 2;
    }
    return place / pieceCount();
}

CurvePoint SplineCurve::point(double parameter) const {
    return at(clampedParameter(parameter) * pieceCount());
}

CurvePoint SplineCurve::tangent(double parameter) const {
    if (!(length() > 0)) return {};
    const double place = clampedParameter(parameter) * pieceCount();
    CurvePoint along = velocity(place);
    if (lengthOf(along) <= 1e-9 * length()) {
        // The curve stands still here, but perhaps not beside.
        constexpr double kAside = 1e-4;
        along = minus(at(std::min(place + kAside, 1.0 * pieceCount())), at(std::max(place - kAside, 0.0)));
    }
    const double size = lengthOf(along);
    return size > 0 ? CurvePoint{along.x / size, along.y / size, along.z / size} : CurvePoint{};
}

}  // namespace maxhost
