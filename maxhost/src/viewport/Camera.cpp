#include "maxhost/src/viewport/Camera.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace maxhost {

namespace {

constexpr double kRadians = 3.14159265358979323846 / 180;

/// The eye's place across one direction of the picture, and along the view, from which the extremes just fit.
/// `low` and `high` are the largest values of (-p - t * distance) and (p - t * distance) over the points.
struct Fit {
    double low = -std::numeric_limits<double>::infinity();
    double high = low;

    void add(double across, double distance, double tangent) {
        low = std::max(low, -across - tangent * distance);
        high = std::max(high, across - tangent * distance);
    }
    double across() const { return (high - low) / 2; }
    double along(double tangent) const { return -(high + low) / (2 * tangent); }
};

}  // namespace

Camera::Camera(const Direction& direction, int pixelWidth, int pixelHeight)
    : width_(pixelWidth),
      height_(pixelHeight),
      focal_(pixelWidth / (2 * std::tan(direction.fieldOfView * kRadians / 2))) {
    const double a = direction.azimuth * kRadians, e = direction.elevation * kRadians;
    right_ = {std::cos(a), std::sin(a), 0};
    forward_ = {-std::sin(a) * std::cos(e), std::cos(a) * std::cos(e), -std::sin(e)};
    up_ = {-std::sin(a) * std::sin(e), std::cos(a) * std::sin(e), std::cos(e)};
}

void Camera::frame(const std::vector<Point3>& points, double margin, double leastDistance) {
    const double tangentX = (1 - 2 * margin) * width_ / (2 * focal_);
    const double tangentY = (1 - 2 * margin) * height_ / (2 * focal_);
    eyeX_ = eyeY_ = eyeDistance_ = 0;
    Fit x, y;
    double closest = std::numeric_limits<double>::infinity(), farthest = -closest;
    for (const Point3& point : points) {
        const ViewPoint p = toView(point);
        x.add(p.x, p.distance, tangentX);
        y.add(p.y, p.distance, tangentY);
        closest = std::min(closest, p.distance);
        farthest = std::max(farthest, p.distance);
    }
    if (points.empty()) closest = farthest = 0;
    eyeX_ = points.empty() ? 0 : x.across();
    eyeY_ = points.empty() ? 0 : y.across();
    const double fitting = points.empty() ? 0 : std::min(x.along(tangentX), y.along(tangentY));
    eyeDistance_ = std::min(fitting, closest - leastDistance);
    reach_ = (closest + farthest) / 2 - eyeDistance_;
    nearest_ = reach_ * 1e-3;
}

ViewPoint Camera::toView(const Point3& p) const {
    return {right_.along(p.x, p.y, p.z) - eyeX_, up_.along(p.x, p.y, p.z) - eyeY_,
            forward_.along(p.x, p.y, p.z) - eyeDistance_};
}

ScreenPoint Camera::toScreen(const ViewPoint& point) const {
    const double nearness = 1 / point.distance;
    return {width_ / 2.0 + point.x * focal_ * nearness, height_ / 2.0 - point.y * focal_ * nearness,
            nearness};
}

Point3 Camera::position() const {
    return Point3(right_.x * eyeX_ + up_.x * eyeY_ + forward_.x * eyeDistance_,
                  right_.y * eyeX_ + up_.y * eyeY_ + forward_.y * eyeDistance_,
                  right_.z * eyeX_ + up_.z * eyeY_ + forward_.z * eyeDistance_);
}

Matrix3 Camera::viewTransform() const {
    return Matrix3(Point3(right_.x, up_.x, -forward_.x), Point3(right_.y, up_.y, -forward_.y),
                   Point3(right_.z, up_.z, -forward_.z), Point3(-eyeX_, -eyeY_, eyeDistance_));
}

}  // namespace maxhost
