#include "maxhost/src/references/DependentList.h"

#include <algorithm>

namespace maxhost {

size_t DependentList::find(ReferenceMaker* maker) const {
    if (slots_.size() > kUnindexed) {
        const auto found = index_.find(maker);
        return found == index_.end() ? kNone : found->second;
    }
    for (size_t i = 0; i < slots_.size(); ++i)
        if (slots_[i].maker == maker) return i;
    return kNone;
}

void DependentList::add(ReferenceMaker* maker) {
    const size_t slot = find(maker);
    if (slot != kNone) {
        ++slots_[slot].references;
        return;
    }
    slots_.push_back({maker, 1});
    ++live_;
    if (slots_.size() == kUnindexed + 1) {
        for (size_t i = 0; i < slots_.size(); ++i)
            if (slots_[i].maker != nullptr) index_[slots_[i].maker] = i;
    } else if (slots_.size() > kUnindexed) {
        index_[maker] = slots_.size() - 1;
    }
}

bool DependentList::remove(ReferenceMaker* maker) {
    const size_t slot = find(maker);
    if (slot == kNone) return false;
    if (--slots_[slot].references > 0) return true;
    slots_[slot].maker = nullptr;
    index_.erase(maker);
    --live_;
    compactIfSparse();
    return true;
}

void DependentList::clear() {
    for (Slot& slot : slots_)
        slot.maker = nullptr;
    index_.clear();
    live_ = 0;
    compactIfSparse();
}

void DependentList::compactIfSparse() {
    if (walks_ > 0 || slots_.size() < 2 * live_ + 4) return;
    slots_.erase(
        std::remove_if(slots_.begin(), slots_.end(), [](const Slot& s) { return s.maker == nullptr; }),
        slots_.end());
    index_.clear();
    if (slots_.size() <= kUnindexed) return;
    for (size_t i = 0; i < slots_.size(); ++i)
        index_[slots_[i].maker] = i;
}

std::vector<ReferenceMaker*> DependentList::makers() const {
    std::vector<ReferenceMaker*> result;
    for (const Slot& slot : slots_)
        if (slot.maker != nullptr) result.push_back(slot.maker);
    return result;
}

void DependentList::endWalk() {
    if (--walks_ == 0) compactIfSparse();
}

}  // namespace maxhost
