#include "adaptor/max/nodes/NodeRegistry.h"

#include "adaptor/max/nodes/CMAXNode.h"

namespace qvo::zmx::adaptor::max {

void NodeRegistry::add(CMAXNode& wrapper) {
    if (contains(wrapper)) return;
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

void NodeRegistry::retireAll() {
    for (CMAXNode* const wrapper : copy()) {
        retired_.emplace(wrapper, wrapper);
        wrapper->markRemoved();
    }
}

void NodeRegistry::abandonAll() {
    std::vector<CMAXNode*> all = copy();
    for (const auto& entry : retired_)
        all.push_back(entry.second);
    wrappers_.clear();
    places_.clear();
    byHandle_.clear();
    retired_.clear();
    for (CMAXNode* const wrapper : all)
        wrapper->abandon();
}

void NodeRegistry::forgetRetired(const CMAXNode& wrapper) {
    retired_.erase(&wrapper);
}

}  // namespace qvo::zmx::adaptor::max
