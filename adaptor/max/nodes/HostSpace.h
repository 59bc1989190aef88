#pragma once

#include <optional>

#include "adaptor/max/Host.h"
#include "core/Matrix4.h"

/// Core space is Y-up in meters, host space Z-up in system units. All conversions between them are here.
namespace qvo::zmx::adaptor::max {

/// System units per meter, from the host's present unit settings; never cached, the user may change them.
double systemUnitsPerMeter();

/// Core space to host space: the axes, then the units. A core point (x, y, z) becomes (x, -z, y) x units per
/// meter.
Matrix4 hostFromCore();

/// Host space to core space.
Matrix4 coreFromHost();

/// A host matrix with its fourth column (0, 0, 0, 1) written out.
Matrix4 widened(const Matrix3& matrix);

/// Back to a host matrix: the fourth column is dropped, doubles become floats.
Matrix3 narrowed(const Matrix4& matrix);

/// Inverse of an affine matrix; none when it is singular or not finite.
std::optional<Matrix4> affineInverse(const Matrix4& matrix);

/// True when none of the twelve numbers is infinite or not a number.
bool isFinite(const Matrix3& matrix);

}  // namespace qvo::zmx::adaptor::max
