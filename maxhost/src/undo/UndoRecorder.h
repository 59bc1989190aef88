#pragma once

#include <deque>
#include <string>
#include <vector>

#include "maxhost/src/undo/UndoGroup.h"

namespace maxhost {

/// The one undo recorder behind `theHold`, with the undo and redo lists that only the host itself commands.
/// Callers' mistakes change nothing and are noted in Faults.
class CoreExport UndoRecorder {
  public:
    static constexpr size_t kDefaultLimit = 20;

    static UndoRecorder& instance();

    // What `theHold` forwards to; the rules stand in hold.h.
    void begin();
    bool holding() const;
    void put(RestoreObj* record);
    void accept(const std::string& name);
    void cancel();
    void restoreOpenGroup();
    void releaseOpenGroup();
    void end();
    void superBegin() { ++superDepth_; }
    void superAccept(const std::string& name);
    void superCancel();
    void suspend() { ++suspended_; }
    void resume();
    bool isSuspended() const { return suspended_ > 0; }
    void disable() { ++disabled_; }
    void enable();
    bool isDisabled() const { return disabled_ > 0; }
    int depth() const { return depth_; }

    enum class Activity { none, undoing, redoing, cancelling };
    Activity activity() const { return activity_; }

    /// The user's commands. False when there is nothing to undo or redo, during a hold and during another
    /// undo.
    bool undo();
    bool redo();
    /// Deletes all entries of both lists.
    void flush();
    /// Number of undo entries kept; the oldest go first.
    void setLimit(size_t limit);
    /// Names of the entries, oldest first.
    std::vector<std::string> undoNames() const { return namesOf(undoList_); }
    /// Names of the entries, the one to be redone next last.
    std::vector<std::string> redoNames() const { return namesOf(redoList_); }

    /// Back to the state at host start: open groups are cancelled, both lists emptied, all counters at rest.
    void reset();

  private:
    using List = std::deque<UndoGroup>;
    class ActivityScope;

    static std::vector<std::string> namesOf(const List& list);
    bool needsDepth(const char* operation) const;
    void closeOpenGroup(const std::string& name);
    void addEntry(UndoGroup&& group, const std::string& name);
    void undoAndDiscard(UndoGroup& group);
    void discard(UndoGroup& group);
    void discard(List& list);
    void trim();
    bool busy() const {
        return depth_ > 0 || superDepth_ > 0 || activity_ != Activity::none || discarding_ > 0;
    }

    UndoGroup open_;
    UndoGroup super_;
    List undoList_;
    List redoList_;
    size_t limit_ = kDefaultLimit;
    int depth_ = 0;
    int superDepth_ = 0;
    int suspended_ = 0;
    int disabled_ = 0;
    /// While records are being deleted nothing is held, so that what they let go of dies at once.
    int discarding_ = 0;
    Activity activity_ = Activity::none;
};

}  // namespace maxhost
