#pragma once

#include <string>

#include "samples/mocap_core/Take.h"

namespace qvo::zmx::mocap {

/// Gives the nodes of a take that was called `former` its present name in their own; nodes that the user
/// renamed keep theirs. The host records that while an undo group is open.
void renameNodes(Take& take, const std::string& former);

/// A name for one more node of `take`: `wanted`, or `wanted` with "-2", "-3", ... when the take has it.
std::string uniqueNodeName(const Take& take, const std::string& wanted);

}  // namespace qvo::zmx::mocap
