#include "adaptor/max/nodes/ConvertedObjects.h"

namespace qvo::zmx::adaptor::max {

TriObject* ConvertedObjects::find(INode& node) const {
    const auto entry = entries_.find(&node);
    return entry != entries_.end() && entry->second.handle == node.GetHandle() ? entry->second.object
                                                                               : nullptr;
}

void ConvertedObjects::store(INode& node, TriObject* object) {
    remove(node);
    entries_[&node] = {node.GetHandle(), object};
}

void ConvertedObjects::remove(INode& node) {
    const auto entry = entries_.find(&node);
    if (entry == entries_.end()) return;
    destroy(entry->second.object);
    entries_.erase(entry);
}

void ConvertedObjects::clear() {
    for (const auto& entry : entries_)
        destroy(entry.second.object);
    entries_.clear();
}

void ConvertedObjects::destroy(TriObject* object) {
    if (!object) return;
    const HoldSuspend suspended;  // inside a hold the host would keep the object for its undo list
    object->DeleteMe();
}

}  // namespace qvo::zmx::adaptor::max
