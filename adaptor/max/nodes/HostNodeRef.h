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

  private:
    INode* node_ = nullptr;  ///< not owned
    ULONG handle_ = 0;       ///< of the node, 0 without one
};

}  // namespace qvo::zmx::adaptor::max
