#include <cmath>

#include <dpoint3.h>
#include <matrix3.h>

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

}  // namespace

Matrix3 Inverse(const Matrix3& m) {
    if (m.IsIdentity()) return m;
    const Adjugate adjugate(m);
    if (adjugate.determinant == 0 || !std::isfinite(adjugate.determinant)) return Matrix3(1);
    Matrix3 inverse(adjugate.row(0), adjugate.row(1), adjugate.row(2), Point3(0, 0, 0));

    DPoint3 shift;
    const DPoint3 trans(m.GetTrans());
    for (int j = 0; j < 3; ++j)
        for (int i = 0; i < 3; ++i)
            shift[j] -= trans[i] * adjugate.column[j][i] / adjugate.determinant;
    inverse.SetTrans(Point3(shift.x, shift.y, shift.z));

    for (int i = 0; i < 4; ++i)
        if (!isFinite(inverse.GetRow(i))) return Matrix3(1);
    inverse.SetIdentFlags(m.GetIdentFlags());
    return inverse;
}
