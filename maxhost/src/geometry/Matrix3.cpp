#include <matrix3.h>

#include <cmath>
#include <limits>

#include "maxhost/src/geometry/Decompose.h"

namespace {

/// Rotation from row axis `a` towards row axis `b`.
Matrix3 axisRotation(int a, int b, float angle) {
    const float c = std::cos(angle), s = std::sin(angle);
    Matrix3 result(1);
    MRow* m = result.GetAddr();
    m[a][a] = c;
    m[a][b] = s;
    m[b][a] = -s;
    m[b][b] = c;
    result.SetIdentFlags(POS_IDENT | SCL_IDENT);
    return result;
}

}  // namespace

Matrix3::Matrix3() : flags(0) {
    for (MRow& row : m)
        for (float& f : row)
            f = std::numeric_limits<float>::quiet_NaN();
}

Matrix3::Matrix3(int) {
    IdentityMatrix();
}

Matrix3::Matrix3(const Point3& u, const Point3& v, const Point3& n, const Point3& t) {
    SetRow(0, u);
    SetRow(1, v);
    SetRow(2, n);
    SetRow(3, t);
    flags = 0;
}

void Matrix3::ValidateFlags() {
    const Matrix3 identity(1);
    flags = 0;
    if (GetTrans() == Point3(0, 0, 0)) flags |= POS_IDENT;
    bool linear = true;
    for (int i = 0; i < 3; ++i)
        linear = linear && GetRow(i) == identity.GetRow(i);
    if (linear) flags |= ROT_IDENT | SCL_IDENT;
}

void Matrix3::IdentityMatrix() {
    Zero();
    m[0][0] = m[1][1] = m[2][2] = 1;
    flags = MAT_IDENT;
}

void Matrix3::Zero() {
    for (MRow& row : m)
        for (float& f : row)
            f = 0;
    flags = 0;
}

void Matrix3::SetRow(int i, const Point3& row) {
    m[i][0] = row.x;
    m[i][1] = row.y;
    m[i][2] = row.z;
    ClearIdentFlag(i == 3 ? POS_IDENT : ROT_IDENT | SCL_IDENT);
}

void Matrix3::SetTrans(int i, float f) {
    m[3][i] = f;
    ClearIdentFlag(POS_IDENT);
}

void Matrix3::NoTrans() {
    SetRow(3, Point3(0, 0, 0));
    flags |= POS_IDENT;
}

void Matrix3::NoRot() {
    const maxhost::ScaledRotation linear = maxhost::scaledRotation(*this);
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j)
            m[i][j] = i == j ? static_cast<float>(linear.sign * linear.scale[i]) : 0.0f;
    flags = (flags & ~SCL_IDENT) | ROT_IDENT;
}

void Matrix3::NoScale() {
    for (int i = 0; i < 3; ++i) {
        const Point3 row = GetRow(i).Normalize();
        SetRow(i, row);
    }
    flags |= SCL_IDENT;
}

void Matrix3::Translate(const Point3& p) {
    SetTrans(GetTrans() + p);
}
void Matrix3::PreTranslate(const Point3& p) {
    SetTrans(PointTransform(p));
}
void Matrix3::RotateX(float angle) {
    *this = *this * RotateXMatrix(angle);
}
void Matrix3::RotateY(float angle) {
    *this = *this * RotateYMatrix(angle);
}
void Matrix3::RotateZ(float angle) {
    *this = *this * RotateZMatrix(angle);
}
void Matrix3::PreRotateX(float angle) {
    *this = RotateXMatrix(angle) * *this;
}
void Matrix3::PreRotateY(float angle) {
    *this = RotateYMatrix(angle) * *this;
}
void Matrix3::PreRotateZ(float angle) {
    *this = RotateZMatrix(angle) * *this;
}

void Matrix3::Scale(const Point3& s, BOOL trans) {
    for (int i = 0; i < (trans ? 4 : 3); ++i)
        for (int j = 0; j < 3; ++j)
            m[i][j] *= s[j];
    ClearIdentFlag(SCL_IDENT);
}

void Matrix3::PreScale(const Point3& s, BOOL trans) {
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j)
            m[i][j] *= s[i];
    if (trans)
        for (int j = 0; j < 3; ++j)
            m[3][j] *= s[j];
    ClearIdentFlag(SCL_IDENT);
}

void Matrix3::Invert() {
    *this = Inverse(*this);
}

BOOL Matrix3::Parity() const {
    return ((GetRow(0) ^ GetRow(1)) % GetRow(2)) < 0 ? TRUE : FALSE;
}

Point3 Matrix3::PointTransform(const Point3& p) const {
    return VectorTransform(p) + GetTrans();
}

Point3 Matrix3::VectorTransform(const Point3& v) const {
    return Point3(v.x * m[0][0] + v.y * m[1][0] + v.z * m[2][0],
                  v.x * m[0][1] + v.y * m[1][1] + v.z * m[2][1],
                  v.x * m[0][2] + v.y * m[1][2] + v.z * m[2][2]);
}

Matrix3 Matrix3::operator*(const Matrix3& b) const {
    if (IsIdentity()) return b;
    if (b.IsIdentity()) return *this;
    Matrix3 product(b.VectorTransform(GetRow(0)), b.VectorTransform(GetRow(1)), b.VectorTransform(GetRow(2)),
                    b.PointTransform(GetTrans()));
    product.flags = flags & b.flags;
    return product;
}

Matrix3 Matrix3::operator+(const Matrix3& b) const {
    return Matrix3(GetRow(0) + b.GetRow(0), GetRow(1) + b.GetRow(1), GetRow(2) + b.GetRow(2),
                   GetRow(3) + b.GetRow(3));
}

int Matrix3::operator==(const Matrix3& b) const {
    for (int i = 0; i < 4; ++i)
        if (GetRow(i) != b.GetRow(i)) return 0;
    return 1;
}

int Matrix3::Equals(const Matrix3& b, float epsilon) const {
    for (int i = 0; i < 4; ++i)
        if (!GetRow(i).Equals(b.GetRow(i), epsilon)) return 0;
    return 1;
}

Point3 operator*(const Point3& p, const Matrix3& m) {
    return m.PointTransform(p);
}
Point3 operator*(const Matrix3& m, const Point3& p) {
    return m.PointTransform(p);
}
Point3 VectorTransform(const Matrix3& m, const Point3& v) {
    return m.VectorTransform(v);
}
Point3 VectorTransform(const Point3& v, const Matrix3& m) {
    return m.VectorTransform(v);
}

Matrix3 TransMatrix(const Point3& p) {
    Matrix3 result(1);
    result.SetTrans(p);
    return result;
}

Matrix3 ScaleMatrix(const Point3& s) {
    Matrix3 result(1);
    result.Scale(s);
    return result;
}

Matrix3 RotateXMatrix(float angle) {
    return axisRotation(1, 2, angle);
}
Matrix3 RotateYMatrix(float angle) {
    return axisRotation(2, 0, angle);
}
Matrix3 RotateZMatrix(float angle) {
    return axisRotation(0, 1, angle);
}
