#pragma once

#include <vector>

namespace qvo::zmx::adaptor::max {

/// A wrapper's snapshots of one kind. Each is either lent to the core (`acquired`) or free for reuse; a
/// released snapshot stays in the pool and keeps what it cached until the next acquisition.
template <class Snapshot>
class SnapshotPool {
  public:
    /// A free snapshot, the newest first, or a new one made by `make()`; marked as acquired.
    template <class Make>
    Snapshot& acquire(Make&& make) {
        Snapshot* const free = findFree();
        Snapshot& snapshot = free ? *free : append(make());
        snapshot.acquired = true;
        return snapshot;
    }

    /// Deletes the free snapshots, newest first, and hands each that is still lent to `keepAlive`.
    template <class KeepAlive>
    void dissolve(KeepAlive&& keepAlive) {
        for (; !snapshots_.empty(); snapshots_.pop_back()) {
            Snapshot* const snapshot = snapshots_.back();
            if (snapshot->acquired)
                keepAlive(*snapshot);
            else
                delete snapshot;
        }
    }

  private:
    Snapshot* findFree() const {
        for (auto snapshot = snapshots_.rbegin(); snapshot != snapshots_.rend(); ++snapshot)
            if (!(*snapshot)->acquired) return *snapshot;
        return nullptr;
    }

    Snapshot& append(Snapshot* snapshot) {
        try {
            snapshots_.push_back(snapshot);
        } catch (...) {
            delete snapshot;
            throw;
        }
        return *snapshot;
    }

    std::vector<Snapshot*> snapshots_;  ///< owned, but for those still lent at the end
};

}  // namespace qvo::zmx::adaptor::max
