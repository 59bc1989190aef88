#include "adaptor/max/services/NodeTagging.h"

#include <utility>
#include <vector>

#include "adaptor/max/nodes/CMAXNode.h"
#include "adaptor/max/services/NodeTag.h"
#include "util/xml/Tag.h"

namespace qvo::zmx::adaptor::max {
namespace {

std::vector<CMAXNode*> nodesOf(const core::Owner& owner, const NodeRegistry& nodes) {
    std::vector<CMAXNode*> owned;
    for (CMAXNode* const wrapper : nodes.inOrder())
        if (wrapper->owner == &owner && !wrapper->isRemoved() && wrapper->hostNode())
            owned.push_back(wrapper);
    return owned;
}

}  // namespace

void tagNodesOf(core::Owner& owner, const NodeRegistry& nodes) {
    if (nodesOf(owner, nodes).empty()) return;
    const std::string ownerName = owner.getName();
    util::xml::Element state = util::xml::Tag("masternodes");
    owner.writeState(state);
    if (state.children.empty()) return;

    for (CMAXNode* const wrapper : nodesOf(owner, nodes)) {  // anew: the owner may have deleted some
        util::xml::Element tag = makeTag(ownerName, wrapper->getName());
        const bool first = !state.children.empty();
        if (first) tag.adoptChild(std::exchange(state, util::xml::Element()));
        writeTag(*wrapper->hostNode(), tag);
    }
}

}  // namespace qvo::zmx::adaptor::max
