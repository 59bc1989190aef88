#pragma once

#include <vector>

#include "adaptor/max/Host.h"

namespace qvo::zmx::adaptor::max {

/// Calls `visit(INode&)` for every node below the host's root: depth first, each node before its children,
/// children in the host's order. Any depth of the hierarchy is fine. `visit` must not change the hierarchy.
template <class Visit>
void forEachSceneNode(Visit&& visit) {
    std::vector<INode*> pending{GetCOREInterface()->GetRootNode()};
    while (!pending.empty()) {
        INode* const node = pending.back();
        pending.pop_back();
        if (!node) continue;
        if (!node->IsRootNode()) visit(*node);
        for (int i = node->NumberOfChildren(); i-- > 0;)
            pending.push_back(node->GetChildNode(i));
    }
}

}  // namespace qvo::zmx::adaptor::max
