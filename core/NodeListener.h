#pragma once

namespace qvo::zmx {

namespace core {
class CoreNode;
}

/// Core-side object that is told when undo or redo takes a node it made out of the scene, and when it is
/// back. Given at node creation, not owned by the adaptor; it must outlive the attachment.
class NodeListener {
  public:
    virtual ~NodeListener() = default;  // slot 0

    /// The node has left the scene; the wrapper is still alive.
    virtual void removed(core::CoreNode* node) = 0;  // slot 1

    /// The node is part of the scene again.
    virtual void restored(core::CoreNode* node) = 0;  // slot 2
};

}  // namespace qvo::zmx
