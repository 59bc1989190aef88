#pragma once

namespace qvo::zmx {

/// 4x4 matrix of doubles as it crosses the boundary: row-major, for row vectors (a point p maps to p x M),
/// the translation in the fourth row; the fourth column of an affine matrix is (0, 0, 0, 1).
struct Matrix4 {
    double m[4][4];
};

/// The identity.
inline constexpr Matrix4 kIdentityMatrix4{{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}};

/// The product that applies `first`, then `second`.
inline Matrix4 operator*(const Matrix4& first, const Matrix4& second) {
    Matrix4 product{};
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 4; ++column)
            for (int i = 0; i < 4; ++i)
                product.m[row][column] += first.m[row][i] * second.m[i][column];
    return product;
}

}  // namespace qvo::zmx
