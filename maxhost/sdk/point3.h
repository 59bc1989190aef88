#pragma once

#include <windows.h>

#include <cmath>

/// Point or vector of three floats. `*` and `/` of two points work per component, `%` is the dot product, `^`
/// the cross product. The default constructor sets nothing to rely on.
class Point3 {
  public:
    float x = 0, y = 0, z = 0;

    Point3() = default;
    Point3(float px, float py, float pz) : x(px), y(py), z(pz) {}
    Point3(double px, double py, double pz)
        : x(static_cast<float>(px)), y(static_cast<float>(py)), z(static_cast<float>(pz)) {}
    Point3(int px, int py, int pz)
        : x(static_cast<float>(px)), y(static_cast<float>(py)), z(static_cast<float>(pz)) {}
    explicit Point3(const float* values) : x(values[0]), y(values[1]), z(values[2]) {}

    float& operator[](int i) { return i == 0 ? x : i == 1 ? y : z; }
    const float& operator[](int i) const { return i == 0 ? x : i == 1 ? y : z; }

    Point3 operator-() const { return Point3(-x, -y, -z); }
    Point3 operator+(const Point3& b) const { return Point3(x + b.x, y + b.y, z + b.z); }
    Point3 operator-(const Point3& b) const { return Point3(x - b.x, y - b.y, z - b.z); }
    Point3 operator*(const Point3& b) const { return Point3(x * b.x, y * b.y, z * b.z); }
    Point3 operator/(const Point3& b) const { return Point3(x / b.x, y / b.y, z / b.z); }
    Point3 operator*(float f) const { return Point3(x * f, y * f, z * f); }
    Point3 operator/(float f) const { return Point3(x / f, y / f, z / f); }
    float operator%(const Point3& b) const { return x * b.x + y * b.y + z * b.z; }
    Point3 operator^(const Point3& b) const {
        return Point3(y * b.z - z * b.y, z * b.x - x * b.z, x * b.y - y * b.x);
    }

    Point3& operator+=(const Point3& b) { return *this = *this + b; }
    Point3& operator-=(const Point3& b) { return *this = *this - b; }
    Point3& operator*=(float f) { return *this = *this * f; }
    Point3& operator/=(float f) { return *this = *this / f; }

    int operator==(const Point3& b) const { return x == b.x && y == b.y && z == b.z; }
    int operator!=(const Point3& b) const { return !(*this == b); }
    /// Whether no component differs by more than `epsilon`.
    int Equals(const Point3& b, float epsilon = 1e-6f) const {
        return std::fabs(x - b.x) <= epsilon && std::fabs(y - b.y) <= epsilon &&
               std::fabs(z - b.z) <= epsilon;
    }
    float Length() const { return std::sqrt(*this % *this); }
    float LengthSquared() const { return *this % *this; }
    /// The unit vector; a zero vector stays zero.
    Point3 Normalize() const {
        const float length = Length();
        return length == 0 ? *this : *this / length;
    }
};

inline Point3 operator*(float f, const Point3& p) {
    return p * f;
}
inline float Length(const Point3& p) {
    return p.Length();
}
inline float LengthSquared(const Point3& p) {
    return p.LengthSquared();
}
inline Point3 Normalize(const Point3& p) {
    return p.Normalize();
}
inline float DotProd(const Point3& a, const Point3& b) {
    return a % b;
}
inline Point3 CrossProd(const Point3& a, const Point3& b) {
    return a ^ b;
}
