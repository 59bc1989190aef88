#pragma once

#include <cstdint>

#include "adaptor/max/controllers/KeyTable.h"

namespace qvo::zmx::adaptor::max {

/// A table without the keys inside `cut`, and with the later ones moved left by the length of the cut unless
/// TIME_NOSLIDE is set. The ends of the cut count as outside: a key at the start stays unless TIME_INCLEFT is
/// set, one at the end slides like the later ones unless TIME_INCRIGHT is set. A key that would slide onto
/// another one is dropped. An empty or inverted interval cuts nothing. Linear.
template <typename T>
KeyTable<T> withoutTime(const KeyTable<T>& keys, const Interval& cut, DWORD flags) {
    if (cut.Empty() || cut.Start() > cut.End()) return keys;
    const std::int64_t slide = flags & TIME_NOSLIDE ? 0 : std::int64_t{cut.End()} - cut.Start();
    KeyTable<T> rest;
    for (int i = 0; i < keys.size(); ++i) {
        ZorvaKey<T> key = keys[i];
        const bool inside = key.time > cut.Start() && key.time < cut.End();
        const bool atStart = key.time == cut.Start() && flags & TIME_INCLEFT;
        const bool atEnd = key.time == cut.End() && flags & TIME_INCRIGHT;
        if (inside || atStart || atEnd) continue;
        if (key.time >= cut.End()) key.time = static_cast<TimeValue>(key.time - slide);
        if (rest.empty() || key.time > rest.last().time) rest.append(key);
    }
    return rest;
}

}  // namespace qvo::zmx::adaptor::max
