#include "adaptor/max/nodes/NodeRegistry.h"

#include "adaptor/max/nodes/CMAXNode.h"

namespace qvo::zmx::adaptor::max {

void NodeRegistry::add(CMAXNode& wrapper) {
    if (contains(wrapper)) return;
    known_.insert(&wrapper);
    places_.emplace(&wrapper, wrappers_.insert(wrappers_.end(), &wrapper));
    byHandle_.emplace(wrapper.handle(), &wrapper);
}

void NodeRegistry::remove(CMAXNode& wrapper) {
    const auto place = places_.find(&wrapper);
    if (place == places_.end()) return;
    wrappers_.erase(place->second);
    places_.erase(place);
    const auto sameHandle = byHandle_.equal_range(wrapper.handle());
    for (auto entry = sameHandle.first; entry != sameHandle.second; ++entry)
        if (entry->second == &wrapper) {
            byHandle_.erase(entry);
            return;
        }
}

bool NodeRegistry::contains(const CMAXNode& wrapper) const {
    return places_.count(&wrapper) != 0;
}

CMAXNode* NodeRegistry::findByHandle(ULONG handle) const {
    const auto entry = byHandle_.find(handle);
    return entry == byHandle_.end() ? nullptr : entry->second;
}

void NodeRegistry::markAllRemoved() {
    for (CMAXNode* const wrapper : copy())
        wrapper->markRemoved();
}

void NodeRegistry::abandonAll() {
    while (!known_.empty()) {
        CMAXNode& wrapper = wrappers_.empty() ? **known_.begin() : *wrappers_.front();
        forget(wrapper);
        wrapper.abandon();
    }
}

void NodeRegistry::forget(CMAXNode& wrapper) {
    remove(wrapper);
    known_.erase(&wrapper);
}

}  // namespace qvo::zmx::adaptor::max
