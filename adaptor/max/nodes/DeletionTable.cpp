#include "adaptor/max/nodes/DeletionTable.h"

namespace qvo::zmx::adaptor::max {

void DeletionTable::assign(const Tab<INode*>& nodes) {
    clear();
    for (int i = 0; i < nodes.Count(); ++i) {
        INode* const node = nodes[i];
        if (!node) continue;
        entries_[node] = node->GetHandle();
        handles_.push_back(node->GetHandle());
    }
}

void DeletionTable::clear() {
    entries_.clear();
    handles_.clear();
}

bool DeletionTable::contains(INode& node) const {
    const auto entry = entries_.find(&node);
    return entry != entries_.end() && entry->second == node.GetHandle();
}

}  // namespace qvo::zmx::adaptor::max
