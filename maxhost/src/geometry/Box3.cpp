#include <box3.h>

#include <algorithm>

namespace {
constexpr float kFar = 1e30f;
}

void Box3::Init() {
    pmin = Point3(kFar, kFar, kFar);
    pmax = -pmin;
}

int Box3::Contains(const Point3& p) const {
    for (int i = 0; i < 3; ++i)
        if (p[i] < pmin[i] || p[i] > pmax[i]) return 0;
    return 1;
}

Box3& Box3::operator+=(const Point3& p) {
    for (int i = 0; i < 3; ++i) {
        pmin[i] = std::min(pmin[i], p[i]);
        pmax[i] = std::max(pmax[i], p[i]);
    }
    return *this;
}

Box3& Box3::operator+=(const Box3& b) {
    if (b.IsEmpty()) return *this;
    *this += b.pmin;
    return *this += b.pmax;
}

Box3 Box3::operator*(const Matrix3& tm) const {
    Box3 result;
    if (IsEmpty()) return result;
    for (int corner = 0; corner < 8; ++corner) {
        result +=
            Point3(corner & 1 ? pmax.x : pmin.x, corner & 2 ? pmax.y : pmin.y, corner & 4 ? pmax.z : pmin.z) *
            tm;
    }
    return result;
}

void Box3::EnlargeBy(float amount) {
    if (IsEmpty()) return;
    const Point3 step(amount, amount, amount);
    pmin -= step;
    pmax += step;
}
