#pragma once

#include "matrix3.h"

/// Axis-aligned box; empty until something is added.
class CoreExport Box3 {
  public:
    Point3 pmin, pmax;

    Box3() { Init(); }
    Box3(const Point3& low, const Point3& high) : pmin(low), pmax(high) {}

    void Init();
    int IsEmpty() const { return pmin.x > pmax.x; }
    Point3 Min() const { return pmin; }
    Point3 Max() const { return pmax; }
    Point3 Center() const { return (pmin + pmax) / 2.0f; }
    Point3 Width() const { return pmax - pmin; }
    int Contains(const Point3& p) const;

    Box3& operator+=(const Point3& p);
    Box3& operator+=(const Box3& b);
    /// Box of the eight transformed corners; an empty box stays empty.
    Box3 operator*(const Matrix3& tm) const;
    /// Grows by `amount` on every side.
    void EnlargeBy(float amount);
};
