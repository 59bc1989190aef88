#include <ref.h>

RefTargetHandle DefaultRemapDir::FindMapping(RefTargetHandle from) {
    const auto found = clones_.find(from);
    return found == clones_.end() ? nullptr : found->second;
}

void DefaultRemapDir::AddEntry(RefTargetHandle from, RefTargetHandle to) {
    clones_[from] = to;
}

ReferenceTarget* DefaultRemapDir::CloneRef(ReferenceTarget* old) {
    if (old == nullptr) return nullptr;
    if (ReferenceTarget* const known = FindMapping(old)) return known;
    ReferenceTarget* const clone = old->Clone(*this);
    if (clone != nullptr) AddEntry(old, clone);
    return clone;
}

void DefaultRemapDir::Clear() {
    clones_.clear();
}

void DefaultRemapDir::DeleteThis() {
    delete this;
}
