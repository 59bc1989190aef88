#include "adaptor/max/services/NodeTagging.h"

#include "adaptor/max/nodes/CMAXNode.h"
#include "adaptor/max/services/NodeTag.h"

namespace qvo::zmx::adaptor::max {

void tagNodesOf(core::Owner& owner, const NodeRegistry& nodes) {
    const std::string ownerName = owner.getName();
    bool first = true;
    for (CMAXNode* const wrapper : nodes.copy()) {
        if (wrapper->owner != &owner || wrapper->isRemoved()) continue;
        INode* const node = wrapper->hostNode();
        if (!node) continue;

        util::xml::Element tag = makeTag(ownerName, wrapper->getName());
        if (first) {
            util::xml::Element& masternodes = tag.addTag("masternodes");
            owner.writeState(masternodes);
            if (masternodes.children.empty()) return;
            first = false;
        }
        writeTag(*node, tag);
    }
}

}  // namespace qvo::zmx::adaptor::max
