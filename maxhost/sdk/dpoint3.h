#pragma once

#include <cmath>

#include "point3.h"

/// Point or vector of three doubles; operators as for Point3.
class DPoint3 {
  public:
    double x = 0, y = 0, z = 0;

    DPoint3() = default;
    DPoint3(double px, double py, double pz) : x(px), y(py), z(pz) {}
    explicit DPoint3(const Point3& p)
        : x(static_cast<double>(p.x)), y(static_cast<double>(p.y)), z(static_cast<double>(p.z)) {}

    double& operator[](int i) { return i == 0 ? x : i == 1 ? y : z; }
    const double& operator[](int i) const { return i == 0 ? x : i == 1 ? y : z; }

    DPoint3 operator-() const { return DPoint3(-x, -y, -z); }
    DPoint3 operator+(const DPoint3& b) const { return DPoint3(x + b.x, y + b.y, z + b.z); }
    DPoint3 operator-(const DPoint3& b) const { return DPoint3(x - b.x, y - b.y, z - b.z); }
    DPoint3 operator*(double f) const { return DPoint3(x * f, y * f, z * f); }
    DPoint3 operator/(double f) const { return DPoint3(x / f, y / f, z / f); }
    double operator%(const DPoint3& b) const { return x * b.x + y * b.y + z * b.z; }
    DPoint3 operator^(const DPoint3& b) const {
        return DPoint3(y * b.z - z * b.y, z * b.x - x * b.z, x * b.y - y * b.x);
    }
    double Length() const { return std::sqrt(*this % *this); }
};

inline double Length(const DPoint3& p) {
    return p.Length();
}
/// The unit vector; a zero vector stays zero.
inline DPoint3 Normalize(const DPoint3& p) {
    const double length = p.Length();
    return length == 0 ? p : p / length;
}
