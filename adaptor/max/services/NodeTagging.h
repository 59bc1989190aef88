#pragma once

#include "adaptor/max/nodes/NodeRegistry.h"
#include "core/Owner.h"

namespace qvo::zmx::adaptor::max {

/// Writes a tag onto every node of `owner` that is part of the scene; the first one also carries the owner's
/// state. An owner that has no state to write tags nothing.
void tagNodesOf(core::Owner& owner, const NodeRegistry& nodes);

}  // namespace qvo::zmx::adaptor::max
