#pragma once

#include "matrix3.h"

class AngAxis;

/// Unit quaternion, real part `w`. Follows the LEFT-hand rule: a positive angle about an axis turns clockwise
/// seen against it, the opposite of the matrix functions. `Quat(M)` and `MakeMatrix` are inverse to each
/// other.
class CoreExport Quat {
  public:
    float x = 0, y = 0, z = 0, w = 1;

    Quat() = default;
    Quat(float qx, float qy, float qz, float qw) : x(qx), y(qy), z(qz), w(qw) {}
    Quat(double qx, double qy, double qz, double qw);
    /// Rotation of the matrix; its scale and, for a mirrored matrix, its mirror are taken out first.
    explicit Quat(const Matrix3& m);
    explicit Quat(const AngAxis& aa);
    /// Angle in radians about a unit axis.
    Quat(float angle, const Point3& axis);

    int operator==(const Quat& b) const { return x == b.x && y == b.y && z == b.z && w == b.w; }
    Quat operator-() const { return Quat(-x, -y, -z, -w); }
    /// Applies this rotation first, then `b`.
    Quat operator*(const Quat& b) const;
    Quat& operator*=(const Quat& b) { return *this = *this * b; }
    float operator%(const Quat& b) const { return x * b.x + y * b.y + z * b.z + w * b.w; }

    Quat& Identity();
    int IsIdentity() const { return x == 0 && y == 0 && z == 0 && (w == 1 || w == -1); }
    Quat& Invert();
    Quat Inverse() const;
    /// A zero quaternion becomes the identity.
    Quat& Normalize();
    /// Flips the sign when that brings it nearer to `other` (the rotation stays the same).
    Quat& MakeClosest(const Quat& other);
    /// Fills `m` with this rotation, no translation.
    void MakeMatrix(Matrix3& m) const;
};

/// Axis and angle in radians, any number of turns; left-hand rule like Quat.
class CoreExport AngAxis {
  public:
    Point3 axis;
    float angle = 0;

    AngAxis() = default;
    AngAxis(const Point3& a, float radians) : axis(a), angle(radians) {}
    explicit AngAxis(const Quat& q);
};

CoreExport Quat Inverse(const Quat& q);
CoreExport Quat Normalize(const Quat& q);
/// From `p` (t = 0) to `q` (t = 1) at uniform rate. Simplified: always takes the shorter arc.
CoreExport Quat Slerp(const Quat& p, const Quat& q, float t);
/// The rotation applied after, or before, the matrix.
CoreExport void RotateMatrix(Matrix3& m, const Quat& q);
CoreExport void PreRotateMatrix(Matrix3& m, const Quat& q);
CoreExport void RotateMatrix(Matrix3& m, const AngAxis& aa);
CoreExport void PreRotateMatrix(Matrix3& m, const AngAxis& aa);
