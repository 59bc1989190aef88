#pragma once

#include "adaptor/max/Host.h"

namespace qvo::zmx::adaptor::max {

/// A host node that may die at any time: its handle is remembered and the host asked at each use.
class HostNodeRef {
  public:
    HostNodeRef() = default;
    explicit HostNodeRef(INode* node) : node_(node), handle_(node ? node->GetHandle() : 0) {}

    /// Null when there is none or the host does not know it any more.
    INode* get() const {
        return node_ && GetCOREInterface()->GetINodeByHandle(handle_) == node_ ? node_ : nullptr;
    }

    /// `object` while the node refers to it, else null.
    template <class T>
    T* ifStillItsObject(T* object) const {
        INode* const present = get();
        return present && present->GetObjectRef() == object ? object : nullptr;
    }

    /// 0 without a node; stays when the node dies.
    ULONG handle() const { return handle_; }

  private:
    INode* node_ = nullptr;  ///< not owned
    ULONG handle_ = 0;
};

/// Null at the top level.
inline INode* parentOf(INode& node) {
    INode* const parent = node.GetParentNode();
    return parent && !parent->IsRootNode() ? parent : nullptr;
}

}  // namespace qvo::zmx::adaptor::max
