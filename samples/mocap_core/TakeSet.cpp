#include "samples/mocap_core/TakeSet.h"

#include <algorithm>
#include <utility>

namespace qvo::zmx::mocap {

Take& TakeSet::add(std::unique_ptr<Take> take) {
    takes_.push_back(std::move(take));
    return *takes_.back();
}

void TakeSet::remove(const Take& take) {
    takes_.erase(std::remove_if(takes_.begin(), takes_.end(),
                                [&](const std::unique_ptr<Take>& each) { return each.get() == &take; }),
                 takes_.end());
}

std::vector<Take*> TakeSet::inScene() const {
    std::vector<Take*> present;
    for (const auto& take : takes_)
        if (take->isInScene()) present.push_back(take.get());
    return present;
}

Take* TakeSet::latest() const {
    const std::vector<Take*> present = inScene();
    return present.empty() ? nullptr : present.back();
}

Take* TakeSet::findByName(const std::string& name) const {
    for (Take* const take : inScene())
        if (take->record().name == name) return take;
    return nullptr;
}

std::string TakeSet::uniqueName(const std::string& wanted) const {
    return uniqueName(wanted, names());
}

std::string TakeSet::uniqueName(const std::string& wanted, const std::unordered_set<std::string>& taken) {
    std::string name = wanted;
    for (int number = 2; taken.count(name) != 0; ++number)
        name = wanted + "-" + std::to_string(number);
    return name;
}

std::unordered_set<std::string> TakeSet::names() const {
    std::unordered_set<std::string> names;
    for (const Take* const take : inScene())
        names.insert(take->record().name);
    return names;
}

std::unordered_set<std::string> TakeSet::ids() const {
    std::unordered_set<std::string> ids;
    for (const Take* const take : inScene())
        ids.insert(take->record().id);
    return ids;
}

void TakeSet::refresh(core::AdaptorInterface& adaptor) const {
    for (const auto& take : takes_)
        take->refresh(adaptor);
}

void TakeSet::tagNodes(core::AdaptorInterface& adaptor) const {
    std::unordered_set<std::string> met;
    for (Take* const take : inScene()) {
        if (take->hasChangedSinceSaved() || met.count(take->record().id) != 0) take->renewId();
        met.insert(take->record().id);
        take->tagNodes(adaptor);
    }
}

}  // namespace qvo::zmx::mocap
