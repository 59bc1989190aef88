#pragma once

#include "adaptor/max/controllers/ZorvaKey.h"
#include "core/Matrix4.h"

namespace qvo::zmx::adaptor::max {

/// The straight line through two keys at `t`, in single precision. Time differences are 32-bit and may wrap.
/// Not finite when the keys are not, or when they lie further apart than a float can say.
float interpolated(const ZorvaKey<float>& left, const ZorvaKey<float>& right, TimeValue t);

/// The transform that lies the part `f` (0 to 1) of the way from `a` to `b`: translation and the lengths of
/// the three axes change linearly, the rotation follows the shorter arc at a uniform rate.
///
/// A mirror counts as three negative lengths, so two mirrored matrices give mirrored ones throughout. An axis
/// of length zero takes no part in the rotation and stays zero where it is zero in both. Shear is lost. Not
/// finite only when the matrices are not.
Matrix4 blended(const Matrix4& a, const Matrix4& b, double f);

/// The same with both matrices seen under `parent` (child times parent), so that the motion is even in the
/// space around the parent; the result is relative to the parent again. A parent that cannot be undone is
/// left out.
Matrix4 blendedUnder(const Matrix4& parent, const Matrix4& a, const Matrix4& b, double f);

}  // namespace qvo::zmx::adaptor::max
