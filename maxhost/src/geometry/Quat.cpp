#include <quat.h>

#include <cmath>

#include "maxhost/src/geometry/Decompose.h"

namespace {

/// Quaternion of a right-handed orthonormal matrix, taking the component of largest size first so that no
/// cancellation costs digits (Shepperd's method).
Quat fromRotation(const double (&r)[3][3]) {
    const double trace = r[0][0] + r[1][1] + r[2][2];
    int largest = 3;
    double best = trace;
    for (int i = 0; i < 3; ++i) {
        if (r[i][i] > best) {
            best = r[i][i];
            largest = i;
        }
    }
    if (largest == 3) {
        const double w2 = std::sqrt(1 + trace);  // twice the real part
        return Quat((r[2][1] - r[1][2]) / (2 * w2), (r[0][2] - r[2][0]) / (2 * w2),
                    (r[1][0] - r[0][1]) / (2 * w2), w2 / 2);
    }
    const int i = largest, j = (i + 1) % 3, k = (i + 2) % 3;
    const double i2 = std::sqrt(1 + r[i][i] - r[j][j] - r[k][k]);
    double v[3];
    v[i] = i2 / 2;
    v[j] = (r[j][i] + r[i][j]) / (2 * i2);
    v[k] = (r[k][i] + r[i][k]) / (2 * i2);
    return Quat(v[0], v[1], v[2], (r[k][j] - r[j][k]) / (2 * i2));
}

}  // namespace

Quat::Quat(double qx, double qy, double qz, double qw)
    : x(static_cast<float>(qx)),
      y(static_cast<float>(qy)),
      z(static_cast<float>(qz)),
      w(static_cast<float>(qw)) {}

Quat::Quat(const Matrix3& m) : Quat(fromRotation(maxhost::scaledRotation(m).rotation)) {}

Quat::Quat(const AngAxis& aa) : Quat(aa.angle, aa.axis) {}

Quat::Quat(float angle, const Point3& axis) {
    const double half = static_cast<double>(angle) / 2;
    const double s = std::sin(half);
    *this = Quat(s * static_cast<double>(axis.x), s * static_cast<double>(axis.y),
                 s * static_cast<double>(axis.z), std::cos(half));
}

Quat Quat::operator*(const Quat& b) const {
    return Quat(w * b.x + x * b.w + y * b.z - z * b.y, w * b.y + y * b.w + z * b.x - x * b.z,
                w * b.z + z * b.w + x * b.y - y * b.x, w * b.w - x * b.x - y * b.y - z * b.z);
}

Quat& Quat::Identity() {
    return *this = Quat(0.0f, 0.0f, 0.0f, 1.0f);
}

Quat Quat::Inverse() const {
    const float square = *this % *this;
    return square == 0 ? Quat() : Quat(-x / square, -y / square, -z / square, w / square);
}

Quat& Quat::Invert() {
    return *this = Inverse();
}

Quat& Quat::Normalize() {
    const float length = std::sqrt(*this % *this);
    if (length == 0) return Identity();
    return *this = Quat(x / length, y / length, z / length, w / length);
}

Quat& Quat::MakeClosest(const Quat& other) {
    return *this % other < 0 ? *this = -*this : *this;
}

void Quat::MakeMatrix(Matrix3& m) const {
    // The usual column-vector rotation laid out as rows: with row vectors this turns the other way round,
    // which is the left-hand rule.
    const double dx = static_cast<double>(x), dy = static_cast<double>(y), dz = static_cast<double>(z),
                 dw = static_cast<double>(w);
    const double square = dx * dx + dy * dy + dz * dz + dw * dw;
    const double s = square == 0 ? 0 : 2 / square;
    m = Matrix3(Point3(1 - s * (dy * dy + dz * dz), s * (dx * dy - dw * dz), s * (dx * dz + dw * dy)),
                Point3(s * (dx * dy + dw * dz), 1 - s * (dx * dx + dz * dz), s * (dy * dz - dw * dx)),
                Point3(s * (dx * dz - dw * dy), s * (dy * dz + dw * dx), 1 - s * (dx * dx + dy * dy)),
                Point3(0, 0, 0));
    m.SetIdentFlags(IsIdentity() ? MAT_IDENT : POS_IDENT | SCL_IDENT);
}

AngAxis::AngAxis(const Quat& q) {
    const Point3 v(q.x, q.y, q.z);
    const float sine = v.Length();
    axis = sine == 0 ? Point3(0, 0, 1) : v / sine;
    angle = 2 * std::atan2(sine, q.w);
}

Quat Inverse(const Quat& q) {
    return q.Inverse();
}

Quat Normalize(const Quat& q) {
    Quat unit = q;
    return unit.Normalize();
}

Quat Slerp(const Quat& p, const Quat& q, float t) {
    Quat end = q;
    end.MakeClosest(p);
    const double cosine = static_cast<double>(p % end);
    double a = 1 - static_cast<double>(t), b = static_cast<double>(t);
    // Nearly equal ends: the straight line is as good, and the sine below would vanish.
    if (cosine < 0.9999) {
        const double angle = std::acos(cosine);
        a = std::sin(a * angle) / std::sin(angle);
        b = std::sin(b * angle) / std::sin(angle);
    }
    const float fa = static_cast<float>(a), fb = static_cast<float>(b);
    return Normalize(
        Quat(fa * p.x + fb * end.x, fa * p.y + fb * end.y, fa * p.z + fb * end.z, fa * p.w + fb * end.w));
}

void RotateMatrix(Matrix3& m, const Quat& q) {
    Matrix3 rotation(1);
    q.MakeMatrix(rotation);
    m = m * rotation;
}

void PreRotateMatrix(Matrix3& m, const Quat& q) {
    Matrix3 rotation(1);
    q.MakeMatrix(rotation);
    m = rotation * m;
}

void RotateMatrix(Matrix3& m, const AngAxis& aa) {
    RotateMatrix(m, Quat(aa));
}
void PreRotateMatrix(Matrix3& m, const AngAxis& aa) {
    PreRotateMatrix(m, Quat(aa));
}
