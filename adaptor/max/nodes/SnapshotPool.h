#pragma once

#include <memory>
#include <vector>

namespace qvo::zmx::adaptor::max {

class CMAXNode;

/// A wrapper's snapshots of one kind. Each is either lent to the core (`acquired`) or free for reuse; a
/// released snapshot stays in the pool and keeps what it cached until the next acquisition.
template <class Snapshot>
class SnapshotPool {
  public:
    /// A free snapshot, the newest first, or a new one made for `wrapper`; marked as acquired.
    Snapshot& acquire(CMAXNode& wrapper) {
        Snapshot* snapshot = findFree();
        if (!snapshot) snapshot = snapshots_.emplace_back(std::make_unique<Snapshot>(wrapper)).get();
        snapshot->acquired = true;
        return *snapshot;
    }

    /// Deletes the free snapshots, newest first, and hands each that is still lent to `keepAlive`, which must
    /// not throw.
    template <class KeepAlive>
    void dissolve(KeepAlive&& keepAlive) {
        for (; !snapshots_.empty(); snapshots_.pop_back())
            if (snapshots_.back()->acquired) keepAlive(*snapshots_.back().release());
    }

  private:
    Snapshot* findFree() const {
        for (auto snapshot = snapshots_.rbegin(); snapshot != snapshots_.rend(); ++snapshot)
            if (!(*snapshot)->acquired) return snapshot->get();
        return nullptr;
    }

    std::vector<std::unique_ptr<Snapshot>> snapshots_;
};

}  // namespace qvo::zmx::adaptor::max
