#pragma once

#include <string>

#include "core/CExtendable.h"
#include "core/NodeListener.h"

namespace qvo::zmx {

/// A scene node as every side sees it: visibility, selection, place in the hierarchy.
class CNode : public CExtendable {
  public:
    virtual void show() = 0;       // slot 3
    virtual void hide() = 0;       // slot 4
    virtual bool isVisible() = 0;  // slot 5

    /// Selects the node: in place of the present selection, or in addition to it inside a selection batch.
    virtual void select() = 0;  // slot 6

    /// True for a view of a node, and for a wrapper that its scene's closing or CoreNode::markRemoved() has
    /// left to the core. A wrapper that a deletion or undo took out of the scene answers false: it may come
    /// back.
    virtual bool isRemoved() = 0;  // slot 7

    /// A view of the parent, or null at the top level. Given back through releaseNode.
    virtual core::CoreNode* getParent() = 0;  // slot 8

    virtual int numberOfChildren() = 0;  // slot 9

    /// A view of child `index`, or null. Given back through releaseNode.
    virtual core::CoreNode* getChild(int index) = 0;  // slot 10

    /// Ends a wrapper that is the core's: a view, or one that is removed. Null does nothing.
    virtual void releaseNode(core::CoreNode* node) = 0;  // slot 11

    virtual ~CNode() = default;  // slot 12

    /// The node's name as it was given at creation or claiming; the host's own name may differ.
    std::string name;

    /// Told when the node leaves the scene other than by this wrapper's deleteNode(), and when it is back.
    /// Null unless given at creation; not owned.
    NodeListener* listener = nullptr;

  protected:
    CNode() = default;
    CNode(const CNode&) = default;
    CNode& operator=(const CNode&) = default;
};

}  // namespace qvo::zmx
