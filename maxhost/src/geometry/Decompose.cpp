#include "maxhost/src/geometry/Decompose.h"

#include <decomp.h>

#include <cmath>

#include <dpoint3.h>

namespace maxhost {

namespace {

/// Below this sine two axes count as one direction; float rows carry no more.
constexpr double kParallel = 1e-6;

/// Part of unit vector `v` square to unit vector `axis`, made unit; zero when there is none to speak of.
DPoint3 squareTo(const DPoint3& axis, const DPoint3& v) {
    const DPoint3 rest = v - axis * (axis % v);
    return rest.Length() < kParallel ? DPoint3() : Normalize(rest);
}

DPoint3 anySquareTo(const DPoint3& axis) {
    const DPoint3 helper = std::fabs(axis.x) < 0.5 ? DPoint3(1, 0, 0) : DPoint3(0, 1, 0);
    return squareTo(axis, helper);
}

bool isZero(const DPoint3& v) {
    return v.x == 0 && v.y == 0 && v.z == 0;
}

/// The first row's direction, or one that leaves the later rows theirs.
DPoint3 firstAxis(const DPoint3 (&unit)[3]) {
    if (!isZero(unit[0])) return unit[0];
    for (int i = 1; i < 3; ++i)
        if (!isZero(unit[i])) return anySquareTo(unit[i]);
    return DPoint3(1, 0, 0);
}

}  // namespace

ScaledRotation scaledRotation(const Matrix3& m) {
    DPoint3 unit[3];
    ScaledRotation result;
    for (int i = 0; i < 3; ++i) {
        const DPoint3 row(m.GetRow(i));
        result.scale[i] = row.Length();
        unit[i] = Normalize(row);
    }

    const DPoint3 x = firstAxis(unit);
    DPoint3 y = squareTo(x, unit[1]);
    if (isZero(y)) {
        const DPoint3 z = squareTo(x, unit[2]);
        y = isZero(z) ? anySquareTo(x) : z ^ x;
    }
    const DPoint3 z = x ^ y;

    // A mirror is kept as a negative scale of all three axes, which leaves a proper rotation.
    result.sign = z % unit[2] < 0 ? -1.0 : 1.0;
    const DPoint3 rows[3] = {x * result.sign, y * result.sign, z};
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j)
            result.rotation[i][j] = rows[i][j];
    return result;
}

}  // namespace maxhost

void decomp_affine(const Matrix3& m, AffineParts* parts) {
    const maxhost::ScaledRotation linear = maxhost::scaledRotation(m);
    parts->t = m.GetTrans();
    parts->q = Quat(m);
    parts->u.Identity();
    parts->k = Point3(linear.scale[0], linear.scale[1], linear.scale[2]);
    parts->f = static_cast<float>(linear.sign);
}
