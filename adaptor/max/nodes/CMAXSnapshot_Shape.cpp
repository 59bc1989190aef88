#include "adaptor/max/nodes/CMAXSnapshot_Shape.h"

#include <algorithm>
#include <cmath>

#include "adaptor/max/Boundary.h"

namespace qvo::zmx::adaptor::max {

using util::Point3d;

namespace {

/// Distance between the two points that a tangent is measured from, as a normalized parameter.
constexpr double kTangentStep = 0.00001;

}  // namespace

int CMAXNode::CMAXSnapshot_Shape::numberOfCurves() {
    return guarded("numberOfCurves", 0, [&] {
        ShapeObject* const shape = usableObject();
        return shape ? shape->NumberOfCurves() : 0;
    });
}

int CMAXNode::CMAXSnapshot_Shape::setCurve(int index) {
    curve = std::max(0, std::min(index, numberOfCurves() - 1));
    return 0;
}

double CMAXNode::CMAXSnapshot_Shape::getCurveLength() {
    return guarded("getCurveLength", 0.0, [&] {
        ShapeObject* const shape = usableObject();
        const int index = shape ? usableCurve(*shape) : -1;
        return index >= 0 ? static_cast<double>(shape->LengthOfCurve(ticks, index)) : 0.0;
    });
}

Point3d CMAXNode::CMAXSnapshot_Shape::getPoint(double parameter) {
    return guarded("getPoint", Point3d(), [&] {
        ShapeObject* const shape = usableObject();
        const int index = shape ? usableCurve(*shape) : -1;
        if (index < 0) return Point3d();
        const Point3 point =
            shape->InterpCurve3D(ticks, index, static_cast<float>(parameter), PARAM_NORMALIZED);
        return Point3d{point.x, point.y, point.z};
    });
}

Point3d CMAXNode::CMAXSnapshot_Shape::getTangent(double parameter) {
    double start = std::max(0.0, parameter - kTangentStep / 2);
    if (start + kTangentStep >= 1.0) start = 0.99999;
    const Point3d from = getPoint(start);
    const Point3d to = getPoint(start + kTangentStep);
    const Point3d d{to.x - from.x, to.y - from.y, to.z - from.z};
    const double length = std::sqrt(d.x * d.x + d.y * d.y + d.z * d.z);
    if (length == 0.0) return {0, 1, 0};
    return {d.x / length, d.y / length, d.z / length};
}

}  // namespace qvo::zmx::adaptor::max
