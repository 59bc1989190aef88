#pragma once

#include <string>
#include <vector>

#include "core/AdaptorInterface.h"

namespace qvo::zmx::adaptor::max {

/// Merges the models of another scene file into the scene and puts the user's selection back as it was.
/// Whatever an open undo group has recorded so far becomes a host undo entry named "tmp": a merge is never
/// part of a group.
///
/// The nodes that arrived, as new transient wrappers, which are the caller's; none when the host refuses the
/// file or throws, which the log tells.
std::vector<core::CoreNode*> mergeScene(const std::string& path, core::AdaptorInterface& adaptor);

}  // namespace qvo::zmx::adaptor::max
