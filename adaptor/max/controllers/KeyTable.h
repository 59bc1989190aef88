#pragma once

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "adaptor/max/controllers/ZorvaKey.h"

namespace qvo::zmx::adaptor::max {

/// The keys of one controller, in order of time. Invariant: times strictly increase.
///
/// Appending is amortised constant. Searching is logarithmic; for nearest() and around() it is constant when
/// the time asked for lies beside the last one. Inserting and erasing cost the distance from the last edit,
/// so that a series of edits that walks through the table in either direction is linear as a whole; for that
/// the keys lie in two stacks that meet where the last edit was.
///
/// Indices are checked by assertion only; callers test what comes from outside.
template <typename T>
class KeyTable {
  public:
    using Key = ZorvaKey<T>;

    /// The keys to blend between for some time; both the same where one key alone decides.
    struct Neighbours {
        int left;
        int right;
    };

    bool empty() const { return before_.empty() && after_.empty(); }
    int size() const { return static_cast<int>(before_.size() + after_.size()); }

    const Key& operator[](int index) const {
        assert(isIndex(index));
        const auto at = static_cast<std::size_t>(index);
        return at < before_.size() ? before_[at] : after_[after_.size() - 1 - (at - before_.size())];
    }

    /// The time must stay between those of the neighbours.
    Key& operator[](int index) { return const_cast<Key&>(static_cast<const KeyTable&>(*this)[index]); }

    const Key& first() const { return (*this)[0]; }
    const Key& last() const { return (*this)[size() - 1]; }
    bool isIndex(int index) const { return index >= 0 && index < size(); }

    /// Index of the key at `t`, or -1.
    int indexOf(TimeValue t) const {
        const int index = lowerBound(t);
        return isIndex(index) && (*this)[index].time == t ? index : -1;
    }

    /// Index of the first key that is not earlier than `t`; size() when there is none.
    int lowerBound(TimeValue t) const {
        return partition([t](const Key& key) { return key.time < t; });
    }

    /// Index of the key nearest to `t`, a tie going to the earlier key; -1 in an empty table.
    int nearest(TimeValue t) const {
        if (empty()) return -1;
        if (t < first().time) return cursor_ = 0;
        if (t >= last().time) return size() - 1;
        const int left = lastNotAfter(t);
        const auto toLeft = std::int64_t{t} - (*this)[left].time;
        const auto toRight = std::int64_t{(*this)[left + 1].time} - t;
        return cursor_ = toLeft > toRight ? left + 1 : left;
    }

    /// Not for an empty table.
    Neighbours around(TimeValue t) const {
        if (t <= first().time) return {0, 0};
        if (t >= last().time) return {size() - 1, size() - 1};
        const int left = lastNotAfter(t);
        return {left, (*this)[left].time == t ? left : left + 1};
    }

    /// `key` must be later than all others.
    void append(const Key& key) {
        assert(empty() || key.time > last().time);
        openAt(size());
        before_.push_back(key);
    }

    /// Places `key` before the one at `index`, or at the end.
    void insert(int index, const Key& key) {
        assert(index == size() || key.time < (*this)[index].time);
        assert(index == 0 || key.time > (*this)[index - 1].time);
        openAt(index);
        before_.push_back(key);
    }

    void erase(int index) {
        assert(isIndex(index));
        openAt(index + 1);
        before_.pop_back();
    }

    void clear() { *this = KeyTable(); }

  private:
    /// Moves the place where the stacks meet, so that `index` keys lie before it.
    void openAt(int index) {
        const auto count = static_cast<std::size_t>(index);
        while (before_.size() > count) {
            after_.push_back(before_.back());
            before_.pop_back();
        }
        while (before_.size() < count) {
            before_.push_back(after_.back());
            after_.pop_back();
        }
    }

    /// Number of leading keys that satisfy `isLeft`.
    template <typename Predicate>
    int partition(Predicate isLeft) const {
        int low = 0;
        int high = size();
        while (low < high) {
            const int middle = low + (high - low) / 2;
            if (isLeft((*this)[middle])) {
                low = middle + 1;
            } else {
                high = middle;
            }
        }
        return low;
    }

    bool startsBefore(int index, TimeValue t) const {
        return index >= 0 && index + 1 < size() && (*this)[index].time <= t && t < (*this)[index + 1].time;
    }

    /// Index of the last key at or before `t`, which lies between the first and the last key.
    int lastNotAfter(TimeValue t) const {
        for (const int guess : {cursor_, cursor_ + 1, cursor_ - 1})
            if (startsBefore(guess, t)) return cursor_ = guess;
        return cursor_ = partition([t](const Key& key) { return key.time <= t; }) - 1;
    }

    std::vector<Key> before_;          ///< the keys before the place of the last edit, in order
    std::vector<Key> after_;           ///< the keys after it, in reverse order
    mutable std::int32_t cursor_ = 0;  ///< where the last search ended; any value is valid
};

}  // namespace qvo::zmx::adaptor::max
