#pragma once

#include <coreexp.h>
#include <point3.h>

#include <vector>

namespace maxhost {

/// A corner of a curve and the two control points beside it, in object space.
struct SplineKnot {
    Point3 point, in, out;
};

/// A point or direction in double precision.
struct CurvePoint {
    double x = 0, y = 0, z = 0;
};

/// One curve of cubic Bezier pieces, which lead from each knot to the next and, when closed, from the last
/// back to the first. Never changes; made in time linear in the pieces.
///
/// Parameters run from 0 to 1: evenly over the pieces, or evenly over the length. Others are taken to the
/// nearer end, not-a-number to the start.
class CoreExport SplineCurve {
  public:
    /// Without knots the curve is a single point at the origin. Coordinates that are not finite count as 0.
    SplineCurve(std::vector<SplineKnot> knots, bool closed);
    /// Straight pieces between the points.
    static SplineCurve polyline(const std::vector<Point3>& points, bool closed);

    const std::vector<SplineKnot>& knots() const { return knots_; }
    bool closed() const { return closed_; }
    /// 0 for a single point that is not closed.
    int pieceCount() const;
    /// In system units, with a relative error far below 1e-5.
    double length() const { return marks_.back().length; }
    /// Whether all four control points of a piece lie on it, in order, as on a straight line.
    bool isStraight(int piece) const;

    /// The parameter over the pieces that belongs to one over the length. Logarithmic in the pieces.
    double fromLengthParameter(double parameter) const;
    CurvePoint point(double parameter) const;
    /// The unit vector along the curve; zero where the curve has no length at all.
    CurvePoint tangent(double parameter) const;

  private:
    /// Length of the curve up to a place, counted in pieces.
    struct Mark {
        double place, length;
    };

    const SplineKnot& knot(int i) const;
    /// `place` counts in pieces, inside 0 to pieceCount().
    CurvePoint at(double place) const;
    CurvePoint velocity(double place) const;
    double speed(double place) const;
    /// Length between two places of the same piece by Gauss's formula; exact enough only for short stretches.
    double stretch(double from, double to) const;
    /// Adds marks so close that `stretch` is exact enough between them.
    void measure(double from, double to, double whole, int depth, double tolerance);

    std::vector<SplineKnot> knots_;
    bool closed_;
    std::vector<Mark> marks_;
};

}  // namespace maxhost
