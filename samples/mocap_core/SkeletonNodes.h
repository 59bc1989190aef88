#pragma once

#include <vector>

#include "core/AdaptorInterface.h"
#include "samples/mocap_core/Take.h"
#include "samples/mocap_core/bvh/Clip.h"
#include "samples/mocap_core/model/JointLook.h"

namespace qvo::zmx::mocap {

/// The nodes of `take` for the joints of `clip`, in the clip's order. A joint that has none in the scene gets
/// one: a helper under its parent joint's, shown as a bone in the colour of its side. Throws
/// std::runtime_error.
std::vector<core::CoreNode*> skeletonNodes(core::AdaptorInterface& adaptor, Take& take, const Clip& clip,
                                           double metresPerUnit, Bones bones);

}  // namespace qvo::zmx::mocap
