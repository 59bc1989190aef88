#pragma once

#include <hold.h>

#include "maxhost/src/references/RecordHold.h"
#include "maxhost/src/scene/Node.h"

namespace maxhost {

/// Undo record of a node that went from one parent to another. Does nothing where unrecorded changes made
/// since then leave no sense to it: a node or parent outside the scene, or a parent below the node.
class NodeLinkRestore : public RestoreObj {
  public:
    NodeLinkRestore(Node& node, const Node::Link& before, const Node::Link& after)
        : node_(node),
          before_(before),
          after_(after),
          holdNode_(&node),
          holdBefore_(before.parent),
          holdAfter_(after.parent) {}

    void Restore(int /*isUndo*/) override { link(before_); }
    void Redo() override { link(after_); }
    int Size() override { return static_cast<int>(sizeof(*this)); }
    TSTR Description() override { return TSTR(_T("Node link")); }

  private:
    void link(const Node::Link& place) {
        if (node_.inScene() && place.parent->inScene() && !node_.isAncestorOrSelf(*place.parent))
            node_.applyLink(place);
    }

    Node& node_;
    Node::Link before_, after_;
    RecordHold holdNode_, holdBefore_, holdAfter_;
};

}  // namespace maxhost
