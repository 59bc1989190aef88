#pragma once

#include <cmath>

#include "adaptor/max/controllers/ZorvaKey.h"
#include "adaptor/max/nodes/HostSpace.h"

namespace qvo::zmx::adaptor::max {

/// What the shared controller code needs to know of a value type.
template <typename T>
struct KeyValue;

template <>
struct KeyValue<float> {
    static float zero() { return 0.0f; }
    static float initial() { return 0.0f; }
    static bool isFinite(float value) { return std::isfinite(value); }

    /// The value as the controllers write it.
    static float written(float value) { return value; }

    static float of(Control& control, TimeValue t) {
        float value = 0.0f;
        Interval valid = FOREVER;
        control.GetValue(t, &value, valid, CTRL_ABSOLUTE);
        return value;
    }
};

template <>
struct KeyValue<Matrix3> {
    static Matrix3 zero() {
        Matrix3 matrix(1);
        matrix.Zero();
        return written(matrix);
    }
    static Matrix3 initial() { return written(Matrix3(1)); }
    static bool isFinite(const Matrix3& value) { return max::isFinite(value); }

    /// Without identity hints: they depend on how a matrix came about, and equal animations shall give equal
    /// bytes in the scene file. A matrix without hints is always right.
    static Matrix3 written(Matrix3 value) {
        value.SetIdentFlags(0);
        return value;
    }

    /// The transform relative to the parent.
    static Matrix3 of(Control& control, TimeValue t) {
        Matrix3 value(1);
        Interval valid = FOREVER;
        control.GetValue(t, &value, valid, CTRL_RELATIVE);
        return value;
    }
};

}  // namespace qvo::zmx::adaptor::max
