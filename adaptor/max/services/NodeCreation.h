#pragma once

#include <string>

#include "core/NodeListener.h"
#include "core/Owner.h"
#include "util/CMesh.h"

namespace qvo::zmx::adaptor::max {

class CMAXNode;

/// What the core asks for when it creates a node.
struct NodeRequest {
    core::Owner* owner;       ///< not owned; null is allowed
    const std::string& name;  ///< becomes "owner_name" in the host, cut at 1,024 characters
    CMAXNode* parent;         ///< null: top level
    NodeListener* listener;   ///< not owned; may be null
};

/// Makes a helper node: the plug-in's own helper object with a small default shape. The registered
/// wrapper, or null with nothing left in the scene. While an undo group records, undo takes node and wrapper
/// out together.
CMAXNode* createHelper(const NodeRequest& request);

/// Makes a node that shows `mesh` (object-local, host axes, system units), with a red wire colour. As
/// createHelper.
CMAXNode* createMesh(const NodeRequest& request, const util::CMesh& mesh);

}  // namespace qvo::zmx::adaptor::max
