#pragma once

namespace qvo::zmx {

namespace core {
class CoreNode;
}

/// Core-side object that is told when a node it made leaves the scene other than by deleteNode() of its own
/// wrapper - by undo or redo, by the user, through a view - and when it is back. Given at node creation, not
/// owned by the adaptor; it must outlive the attachment.
class NodeListener {
  public:
    virtual ~NodeListener() = default;  // slot 0

    /// The node leaves the scene; the wrapper is still alive, and may be ended here.
    virtual void removed(core::CoreNode* node) = 0;  // slot 1

    /// The node is part of the scene again.
    virtual void restored(core::CoreNode* node) = 0;  // slot 2
};

}  // namespace qvo::zmx
