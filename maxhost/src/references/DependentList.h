#pragma once

#include <cstddef>
#include <unordered_map>
#include <vector>

class ReferenceMaker;

namespace maxhost {

/// The makers that refer to one target, in order of registration, each with the number of its references.
/// Adding and removing cost (amortised) constant time however long the list is. Slots stay in place while a
/// walk is under way, so messages can be sent while makers come and go.
class DependentList {
  public:
    void add(ReferenceMaker* maker);
    /// One reference of `maker` less. False when it has none here.
    bool remove(ReferenceMaker* maker);
    bool empty() const { return live_ == 0; }
    /// Forgets all makers, whatever their counts.
    void clear();

    size_t slotCount() const { return slots_.size(); }
    /// Null for a slot whose maker has gone.
    ReferenceMaker* at(size_t slot) const { return slot < slots_.size() ? slots_[slot].maker : nullptr; }
    /// Copy of the live makers.
    std::vector<ReferenceMaker*> makers() const;

    void beginWalk() { ++walks_; }
    void endWalk();

  private:
    struct Slot {
        ReferenceMaker* maker;
        int references;
    };
    /// Up to this many slots are searched directly; beyond it an index is kept.
    static constexpr size_t kUnindexed = 16;
    static constexpr size_t kNone = static_cast<size_t>(-1);

    size_t find(ReferenceMaker* maker) const;
    void compactIfSparse();

    std::vector<Slot> slots_;
    std::unordered_map<ReferenceMaker*, size_t> index_;
    size_t live_ = 0;
    int walks_ = 0;
};

}  // namespace maxhost
