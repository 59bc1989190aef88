#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/AdaptorInterface.h"

namespace qvo::zmx::adaptor::max {

class CMAXNode;

/// Merges the models of another scene file into the scene and puts the user's selection back as it was.
/// Whatever an open undo group has recorded so far becomes a host undo entry named "tmp": a merge is never
/// part of a group.
///
/// The nodes that arrived, as new transient wrappers. When the host refuses the file or throws, the log
/// tells, and the nodes are those that the host had selected by then, usually none.
std::vector<std::unique_ptr<CMAXNode>> mergeScene(const std::string& path, core::AdaptorInterface& adaptor);

}  // namespace qvo::zmx::adaptor::max
