#include "adaptor/max/nodes/HostSpace.h"

#include <cmath>

namespace qvo::zmx::adaptor::max {
namespace {

/// Turns Y-up into Z-up: rows are the images of the core's axes.
constexpr Matrix4 kAxisMatrix{{{1, 0, 0, 0}, {0, 0, 1, 0}, {0, -1, 0, 0}, {0, 0, 0, 1}}};

/// The same, backwards: a rotation's inverse is its transpose.
constexpr Matrix4 kInverseAxisMatrix{{{1, 0, 0, 0}, {0, 0, -1, 0}, {0, 1, 0, 0}, {0, 0, 0, 1}}};

Matrix4 uniformScale(double factor) {
    return {{{factor, 0, 0, 0}, {0, factor, 0, 0}, {0, 0, factor, 0}, {0, 0, 0, 1}}};
}

/// Transposed cofactors of the upper left 3x3 part.
void adjugateOf(const double (&m)[4][4], double (&result)[3][3]) {
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 3; ++column) {
            const int r1 = (row + 1) % 3;
            const int r2 = (row + 2) % 3;
            const int c1 = (column + 1) % 3;
            const int c2 = (column + 2) % 3;
            result[column][row] = m[r1][c1] * m[r2][c2] - m[r1][c2] * m[r2][c1];
        }
}

}  // namespace

double systemUnitsPerMeter() {
    int type = 0;
    float scale = 1.0f;
    GetMasterUnitInfo(&type, &scale);
    return GetMasterScale(type) / (GetMasterScale(UNITS_METERS) * scale);
}

Matrix4 hostFromCore() {
    return kAxisMatrix * uniformScale(systemUnitsPerMeter());
}

Matrix4 coreFromHost() {
    return uniformScale(1.0 / systemUnitsPerMeter()) * kInverseAxisMatrix;
}

Matrix4 widened(const Matrix3& matrix) {
    Matrix4 result = kIdentityMatrix4;
    for (int row = 0; row < 4; ++row) {
        const Point3 values = matrix.GetRow(row);
        result.m[row][0] = values.x;
        result.m[row][1] = values.y;
        result.m[row][2] = values.z;
    }
    return result;
}

Matrix3 narrowed(const Matrix4& matrix) {
    Matrix3 result(1);
    for (int row = 0; row < 4; ++row)
        result.SetRow(row, Point3(static_cast<float>(matrix.m[row][0]), static_cast<float>(matrix.m[row][1]),
                                  static_cast<float>(matrix.m[row][2])));
    return result;
}

std::optional<Matrix4> affineInverse(const Matrix4& matrix) {
    double adjugate[3][3];
    adjugateOf(matrix.m, adjugate);
    const double determinant =
        matrix.m[0][0] * adjugate[0][0] + matrix.m[0][1] * adjugate[1][0] + matrix.m[0][2] * adjugate[2][0];
    if (determinant == 0.0 || !std::isfinite(determinant) || !std::isfinite(1.0 / determinant))
        return std::nullopt;

    Matrix4 inverse = kIdentityMatrix4;
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 3; ++column)
            inverse.m[row][column] = adjugate[row][column] / determinant;
    for (int column = 0; column < 3; ++column) {
        inverse.m[3][column] = 0;
        for (int i = 0; i < 3; ++i)
            inverse.m[3][column] -= matrix.m[3][i] * inverse.m[i][column];
    }
    return inverse;
}

bool isFinite(const Matrix3& matrix) {
    for (int row = 0; row < 4; ++row) {
        const Point3 values = matrix.GetRow(row);
        if (!std::isfinite(values.x) || !std::isfinite(values.y) || !std::isfinite(values.z)) return false;
    }
    return true;
}

}  // namespace qvo::zmx::adaptor::max
