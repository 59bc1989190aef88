#pragma once

#include <matrix3.h>

namespace maxhost {

/// The linear part of a matrix as scale, then rotation, in double precision: row i = `sign * scale[i]` times
/// row i of `rotation`, exactly so for matrices without shear.
struct ScaledRotation {
    double rotation[3][3];  ///< right-handed orthonormal rows
    double scale[3];        ///< row lengths, never negative
    double sign;            ///< -1 for a mirrored matrix
};

/// Never gives non-finite numbers for a finite matrix: axes of length zero, or along another axis, are
/// replaced by any fitting direction.
ScaledRotation scaledRotation(const Matrix3& m);

/// Whether `Inverse` gives a true inverse.
bool isInvertible(const Matrix3& m);

}  // namespace maxhost
