#pragma once

#include <string>

#include "core/AdaptorInterface.h"
#include "samples/mocap_core/Take.h"
#include "util/CMesh.h"

namespace qvo::zmx::mocap {

/// A model that has been read, before the scene is touched.
struct PreparedProp {
    std::string path;
    std::string joint;     ///< that it follows; empty: the take's first one
    double metresPerUnit;  ///< meters per unit of the model
    util::CMesh mesh;
};

/// Adds a node to `take` that shows the model and follows its joint, standing where the joint stands. The
/// mesh keeps the model's numbers, its scale is the node's. To be run inside an undo group, which the caller
/// cancels when it throws (std::runtime_error).
void addProp(core::AdaptorInterface& adaptor, Take& take, const PreparedProp& prop);

}  // namespace qvo::zmx::mocap
