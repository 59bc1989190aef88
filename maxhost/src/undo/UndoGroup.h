#pragma once

#include <memory>
#include <string>
#include <vector>

#include <hold.h>

namespace maxhost {

/// Records that are undone together, oldest first, and the name of their undo entry. Every operation is
/// linear in the records; adding one costs amortised constant time.
class UndoGroup {
  public:
    UndoGroup() = default;
    UndoGroup(UndoGroup&&) noexcept = default;
    UndoGroup& operator=(UndoGroup&& other) noexcept;
    ~UndoGroup() { clear(); }

    bool empty() const { return records_.empty(); }
    void add(RestoreObj* record) { records_.emplace_back(record); }
    /// Moves all records of `later` to the end of this group.
    void append(UndoGroup& later);

    /// Newest first.
    void restore(int isUndo);
    /// Oldest first.
    void redo();
    void endHold();
    /// Deletes the records, newest first.
    void clear();

    std::string name;

  private:
    std::vector<std::unique_ptr<RestoreObj>> records_;
};

}  // namespace maxhost
