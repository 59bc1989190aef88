#pragma once

#include <type_traits>

#include "coreexp.h"
#include "point3.h"

/// Bits of a matrix's flag word: hints that a part of it is the identity. 0 is always safe; a bit that is set
/// wrongly gives wrong products, here as in the real host.
constexpr DWORD POS_IDENT = 1;
constexpr DWORD ROT_IDENT = 2;
constexpr DWORD SCL_IDENT = 4;
constexpr DWORD MAT_IDENT = POS_IDENT | ROT_IDENT | SCL_IDENT;

typedef float MRow[3];

/// Affine transform of row vectors, `p * M`: rows 0 to 2 are the axes, row 3 the translation. `A * B` applies
/// A first. 52 bytes, stored raw in scene files: twelve floats and the flag word. Rotations are right-handed.
class CoreExport Matrix3 {
  public:
    /// The contents are not to be used: the stand-in fills them with not-a-number, so that a use shows.
    Matrix3();
    /// The identity, whatever the argument.
    explicit Matrix3(int init);
    /// From rows; no identity bits.
    Matrix3(const Point3& u, const Point3& v, const Point3& n, const Point3& t);

    MRow* GetAddr() { return m; }
    const MRow* GetAddr() const { return m; }
    DWORD GetIdentFlags() const { return flags; }
    void SetIdentFlags(DWORD identFlags) { flags = identFlags; }
    void ClearIdentFlag(DWORD identFlags) { flags &= ~identFlags; }
    DWORD IsIdentity() const { return (flags & MAT_IDENT) == MAT_IDENT; }
    /// Sets the identity bits of the parts that are the identity exactly; clears the others.
    void ValidateFlags();

    void IdentityMatrix();
    void Zero();
    Point3 GetRow(int i) const { return Point3(m[i][0], m[i][1], m[i][2]); }
    /// Row 3 clears POS_IDENT, the others ROT_IDENT and SCL_IDENT.
    void SetRow(int i, const Point3& row);
    Point3 GetTrans() const { return GetRow(3); }
    void SetTrans(const Point3& p) { SetRow(3, p); }
    /// Sets one component of the translation.
    void SetTrans(int i, float f);
    void NoTrans();
    /// Replaces the rotation by none; the scale along the matrix's own axes stays.
    void NoRot();
    /// Makes the three axes unit vectors.
    void NoScale();

    /// The plain forms apply after this transform, the `Pre` forms before it. Angles in radians.
    void Translate(const Point3& p);
    void PreTranslate(const Point3& p);
    void RotateX(float angle);
    void RotateY(float angle);
    void RotateZ(float angle);
    void PreRotateX(float angle);
    void PreRotateY(float angle);
    void PreRotateZ(float angle);
    /// With `trans` the translation row is scaled too.
    void Scale(const Point3& s, BOOL trans = FALSE);
    void PreScale(const Point3& s, BOOL trans = FALSE);
    void Invert();

    /// Nonzero when the matrix mirrors (negative determinant).
    BOOL Parity() const;
    Point3 PointTransform(const Point3& p) const;
    Point3 VectorTransform(const Point3& v) const;

    Matrix3 operator*(const Matrix3& b) const;
    Matrix3& operator*=(const Matrix3& b) { return *this = *this * b; }
    Matrix3 operator+(const Matrix3& b) const;
    /// Compares the twelve floats; the flag word does not count.
    int operator==(const Matrix3& b) const;
    int operator!=(const Matrix3& b) const { return !(*this == b); }
    int Equals(const Matrix3& b, float epsilon = 1e-6f) const;

  private:
    float m[4][3];
    DWORD flags;
};

static_assert(sizeof(Matrix3) == 52 && std::is_standard_layout<Matrix3>::value, "stored raw in scene files");

CoreExport Point3 operator*(const Point3& p, const Matrix3& m);
CoreExport Point3 operator*(const Matrix3& m, const Point3& p);
/// Direction, so the translation has no effect.
CoreExport Point3 VectorTransform(const Matrix3& m, const Point3& v);
CoreExport Point3 VectorTransform(const Point3& v, const Matrix3& m);

/// Computed in double precision. A singular or non-finite matrix gives the identity (the real host's result
/// is undefined), so that no rubbish enters a scene.
CoreExport Matrix3 Inverse(const Matrix3& m);
CoreExport Matrix3 TransMatrix(const Point3& p);
CoreExport Matrix3 ScaleMatrix(const Point3& s);
CoreExport Matrix3 RotateXMatrix(float angle);
CoreExport Matrix3 RotateYMatrix(float angle);
CoreExport Matrix3 RotateZMatrix(float angle);
