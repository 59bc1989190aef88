#include "util/SingletonCollector.h"

#include <algorithm>

namespace qvo::util {

void SingletonReference::enlist(SingletonReference& singleton) {
    // The collector enlists itself from within this call to instance(), hence as its own first entry.
    SingletonCollector::instance().entries_.push_back(&singleton);
}

void SingletonReference::withdraw(SingletonReference& singleton) noexcept {
    SingletonCollector* const collector = SingletonCollector::existing();
    if (!collector) return;
    // By identity: an object beside the instance (a Log on the stack) is not listed and changes nothing.
    auto& entries = collector->entries_;
    entries.erase(std::remove(entries.begin(), entries.end(), &singleton), entries.end());
}

void SingletonCollector::destroyAll() {
    while (SingletonCollector* const collector = existing()) {
        SingletonReference* const newest = collector->entries_.back();
        collector->entries_.pop_back();
        newest->release();  // of the last entry, the collector itself, ends the loop
    }
}

}  // namespace qvo::util
