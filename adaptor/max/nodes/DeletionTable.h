#pragma once

#include <unordered_map>
#include <vector>

#include "adaptor/max/Host.h"

namespace qvo::zmx::adaptor::max {

/// The host nodes that the host itself is deleting, so that nobody deletes one twice. An entry counts only
/// while both the node's address and its handle match: an address may be used again for another node.
class DeletionTable {
  public:
    /// Replaces the content by copies of `nodes`; null entries are left out.
    void assign(const Tab<INode*>& nodes);
    void clear();

    bool contains(INode& node) const;

    /// Handles in the order of the host's list.
    const std::vector<ULONG>& handles() const { return handles_; }

  private:
    std::unordered_map<INode*, ULONG> entries_;
    std::vector<ULONG> handles_;
};

}  // namespace qvo::zmx::adaptor::max
