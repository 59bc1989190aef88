#include <cmath>

#include <dpoint3.h>
#include <matrix3.h>

#include "maxhost/src/geometry/Decompose.h"

namespace {

bool isFinite(const Point3& p) {
    return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
}

/// Columns of the inverse of the linear part, times the determinant: the cross products of its rows.
struct Adjugate {
    DPoint3 column[3];
    double determinant;

    explicit Adjugate(const Matrix3& m) {
        const DPoint3 u(m.GetRow(0)), v(m.GetRow(1)), n(m.GetRow(2));
        column[0] = v ^ n;
        column[1] = n ^ u;
        column[2] = u ^ v;
        determinant = u % column[0];
    }
    Point3 row(int i) const {
        return Point3(column[0][i] / determinant, column[1][i] / determinant, column[2][i] / determinant);
    }
};

/// False, and `inverse` untouched, when there is none in floats.
bool invert(const Matrix3& m, Matrix3& inverse) {
    const Adjugate adjugate(m);
    if (adjugate.determinant == 0 || !std::isfinite(adjugate.determinant)) return false;
    DPoint3 shift;
    const DPoint3 trans(m.GetTrans());
    for (int j = 0; j < 3; ++j)
        for (int i = 0; i < 3; ++i)
            shift[j] -= trans[i] * adjugate.column[j][i] / adjugate.determinant;

    Matrix3 result(adjugate.row(0), adjugate.row(1), adjugate.row(2), Point3(shift.x, shift.y, shift.z));
    for (int i = 0; i < 4; ++i)
        if (!isFinite(result.GetRow(i))) return false;
    result.SetIdentFlags(m.GetIdentFlags());
    inverse = result;
    return true;
}

}  // namespace

Matrix3 Inverse(const Matrix3& m) {
    if (m.IsIdentity()) return m;
    Matrix3 inverse(1);
    invert(m, inverse);
    return inverse;
}

bool maxhost::isInvertible(const Matrix3& m) {
    Matrix3 inverse(1);
    return invert(m, inverse);
}
