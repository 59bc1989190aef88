#pragma once

#include "quat.h"

/// A matrix as scale, then mirror, then rotation, then translation.
struct AffineParts {
    Point3 t;     ///< translation
    Quat q;       ///< rotation
    Quat u;       ///< axes of the scale; always the identity here
    Point3 k;     ///< scale along the three axes, never negative
    float f = 1;  ///< -1 when the matrix mirrors: the scale is then `f * k`
};

/// Takes a matrix apart, M = scale(f * k) x rotation(q) x translation(t), exactly so for matrices without
/// shear. Simplified: shear is lost (the real host keeps it in turned scale axes). Zero axes give zero scales
/// and any fitting rotation; the result is finite for every finite matrix.
CoreExport void decomp_affine(const Matrix3& m, AffineParts* parts);
