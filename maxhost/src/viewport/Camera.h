#pragma once

#include <matrix3.h>

#include <vector>

namespace maxhost {

/// A point seen from the eye: to the right, up, and away from it; system units.
struct ViewPoint {
    double x = 0, y = 0, distance = 0;
};

/// A point on the picture, in pixels from the upper left corner, with its nearness (1 / distance).
struct ScreenPoint {
    double x = 0, y = 0, nearness = 0;
};

/// A perspective eye in the world (Z up), looking at a picture of a given size.
class CoreExport Camera {
  public:
    /// Where the eye looks from, in degrees: `azimuth` counter-clockwise from the world's -Y axis as seen
    /// from above, `elevation` above the ground. `fieldOfView` spans the picture's width.
    struct Direction {
        double azimuth = 35, elevation = 16, fieldOfView = 32;
    };

    Camera(const Direction& direction, int pixelWidth, int pixelHeight);

    /// Moves the eye, without turning it, to the nearest place from which all `points` lie on the picture, at
    /// least `margin` (a part of the width and of the height, below 0.5) away from its rim. No points, or all
    /// in one place: the eye keeps `leastDistance` from them.
    void frame(const std::vector<Point3>& points, double margin, double leastDistance);

    ViewPoint toView(const Point3& world) const;
    /// `point` must lie in front of the eye.
    ScreenPoint toScreen(const ViewPoint& point) const;

    /// Pixels that one system unit takes at this distance.
    double pixelsPerUnit(double distance) const { return focal_ / distance; }
    /// What lies nearer is not drawn.
    double nearest() const { return nearest_; }
    /// From the eye to the middle of what was framed.
    double reach() const { return reach_; }
    Point3 position() const;
    int pixelWidth() const { return width_; }
    int pixelHeight() const { return height_; }

    /// World to view, the host's way: X right, Y up, looking along -Z.
    Matrix3 viewTransform() const;

  private:
    struct Axis {
        double x, y, z;
        double along(double px, double py, double pz) const { return x * px + y * py + z * pz; }
    };

    int width_, height_;
    double focal_;  // distance of the picture plane in pixels
    Axis right_, up_, forward_;
    double eyeX_ = 0, eyeY_ = 0, eyeDistance_ = 0;  // the eye, along the three axes
    double nearest_ = 1e-3, reach_ = 1;
};

}  // namespace maxhost
