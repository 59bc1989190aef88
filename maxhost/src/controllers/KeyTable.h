#pragma once

#include <algorithm>
#include <cstdint>
#include <type_traits>
#include <vector>

#include <animtbl.h>

namespace maxhost {

/// One key, stored raw in scene files.
template <class T>
struct Key {
    TimeValue time;
    T value;
};

/// Keys in rising order of time, at most one at any time. Looking up costs logarithmic time, appending at the
/// end (amortised) constant time, other changes linear time.
template <class T>
class KeyTable {
    static_assert(std::is_trivially_copyable<Key<T>>::value, "keys are stored raw");

  public:
    bool empty() const { return keys_.empty(); }
    int size() const { return static_cast<int>(keys_.size()); }
    bool has(int i) const { return i >= 0 && i < size(); }
    Key<T>& operator[](int i) { return keys_[static_cast<size_t>(i)]; }
    const Key<T>& operator[](int i) const { return keys_[static_cast<size_t>(i)]; }
    const Key<T>* data() const { return keys_.data(); }
    auto begin() { return keys_.begin(); }
    auto end() { return keys_.end(); }

    /// Index of the first key at `t` or later; `size()` when there is none.
    int firstFrom(TimeValue t) const {
        const auto at = std::lower_bound(keys_.begin(), keys_.end(), t,
                                         [](const Key<T>& key, TimeValue time) { return key.time < time; });
        return static_cast<int>(at - keys_.begin());
    }
    /// -1 when there is no key at `t` exactly.
    int indexOf(TimeValue t) const {
        const int i = firstFrom(t);
        return has(i) && (*this)[i].time == t ? i : -1;
    }

    /// Adds a key, or replaces the one at the same time.
    void set(TimeValue t, const T& value) {
        if (keys_.empty() || t > keys_.back().time) {
            keys_.push_back({t, value});
            return;
        }
        const int i = firstFrom(t);
        if ((*this)[i].time == t)
            (*this)[i].value = value;
        else
            keys_.insert(keys_.begin() + i, {t, value});
    }
    void erase(int i) { keys_.erase(keys_.begin() + i); }
    void clear() { keys_.clear(); }

    /// Removes the keys inside `iv`, those at its ends only with TIME_INCLEFT and TIME_INCRIGHT. Without
    /// TIME_NOSLIDE later keys move left by the length of the interval; one that would land on a kept key is
    /// dropped.
    void deleteTime(const Interval& iv, DWORD flags) {
        if (iv.Empty() || iv.Start() > iv.End()) return;
        const auto inside = [&](TimeValue t) {
            if (t == iv.Start() && t == iv.End()) return (flags & (TIME_INCLEFT | TIME_INCRIGHT)) != 0;
            if (t == iv.Start()) return (flags & TIME_INCLEFT) != 0;
            if (t == iv.End()) return (flags & TIME_INCRIGHT) != 0;
            return t > iv.Start() && t < iv.End();
        };
        const int64_t slide = (flags & TIME_NOSLIDE) != 0 ? 0 : int64_t{iv.End()} - iv.Start();
        std::vector<Key<T>> kept;
        for (Key<T> key : keys_) {
            if (inside(key.time)) continue;
            if (key.time >= iv.End()) key.time = static_cast<TimeValue>(key.time - slide);
            if (kept.empty() || key.time > kept.back().time) kept.push_back(key);
        }
        keys_.swap(kept);
    }

  private:
    std::vector<Key<T>> keys_;
};

}  // namespace maxhost
