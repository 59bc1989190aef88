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

    /// The wrapper is part of the scene again. Also told during a creation inside an undo group, before the
    /// core has the wrapper's pointer. When undo takes back a deleteNode(), the scene node follows only after
    /// this call: until the undo is done the wrapper answers like one whose node is gone.
    virtual void restored(core::CoreNode* node) = 0;  // slot 2
};

}  // namespace qvo::zmx
