#include "maxhost/src/undo/UndoRecorder.h"

#include <memory>
#include <utility>

#include "maxhost/src/undo/Faults.h"

namespace maxhost {

/// Says for a scope what the recorder is doing.
class UndoRecorder::ActivityScope {
  public:
    ActivityScope(UndoRecorder& recorder, Activity activity)
        : recorder_(recorder), former_(recorder.activity_) {
        recorder_.activity_ = activity;
    }
    ~ActivityScope() { recorder_.activity_ = former_; }
    ActivityScope(const ActivityScope&) = delete;
    ActivityScope& operator=(const ActivityScope&) = delete;

  private:
    UndoRecorder& recorder_;
    Activity former_;
};

UndoRecorder& UndoRecorder::instance() {
    // Never destroyed: records of unloaded libraries must not be touched at process exit.
    static UndoRecorder* const recorder = new UndoRecorder;
    return *recorder;
}

void UndoRecorder::begin() {
    ++depth_;
}

bool UndoRecorder::holding() const {
    return depth_ > 0 && suspended_ == 0 && activity_ == Activity::none && discarding_ == 0;
}

void UndoRecorder::put(RestoreObj* record) {
    std::unique_ptr<RestoreObj> owned(record);
    if (record == nullptr || !holding()) {
        Faults::instance().record("Hold::Put outside a hold");
        return;
    }
    open_.add(owned.release());
}

bool UndoRecorder::needsDepth(const char* operation) const {
    if (depth_ > 0) return true;
    Faults::instance().record(std::string("Hold::") + operation + " without Begin");
    return false;
}

void UndoRecorder::accept(const std::string& name) {
    if (needsDepth("Accept") && --depth_ == 0) closeOpenGroup(name);
}

void UndoRecorder::closeOpenGroup(const std::string& name) {
    UndoGroup group = std::move(open_);
    if (group.empty()) return;
    group.endHold();
    if (superDepth_ > 0) {
        super_.append(group);
    } else {
        addEntry(std::move(group), name);
    }
}

void UndoRecorder::addEntry(UndoGroup&& group, const std::string& name) {
    if (group.empty()) return;
    if (disabled_ > 0) {
        discard(group);
        return;
    }
    group.name = name;
    undoList_.push_back(std::move(group));
    discard(redoList_);
    trim();
}

void UndoRecorder::cancel() {
    if (!needsDepth("Cancel")) return;
    undoAndDiscard(open_);
    --depth_;
}

void UndoRecorder::undoAndDiscard(UndoGroup& group) {
    UndoGroup cancelled = std::move(group);
    {
        const ActivityScope scope(*this, Activity::cancelling);
        cancelled.restore(0);
    }
    cancelled.endHold();
    discard(cancelled);
}

void UndoRecorder::restoreOpenGroup() {
    if (!needsDepth("Restore")) return;
    // Taken out meanwhile, so that a record may begin and end holds of its own.
    UndoGroup group = std::move(open_);
    {
        const ActivityScope scope(*this, Activity::cancelling);
        group.restore(0);
    }
    open_ = std::move(group);
}

void UndoRecorder::releaseOpenGroup() {
    if (!needsDepth("Release")) return;
    open_.endHold();
    discard(open_);
}

void UndoRecorder::end() {
    if (!needsDepth("End") || --depth_ > 0) return;
    open_.endHold();
    discard(open_);
}

void UndoRecorder::superAccept(const std::string& name) {
    if (superDepth_ == 0 || depth_ > 0) {
        Faults::instance().record("Hold::SuperAccept without SuperBegin, or inside a hold");
        return;
    }
    if (--superDepth_ > 0) return;
    UndoGroup group = std::move(super_);
    addEntry(std::move(group), name);
}

void UndoRecorder::superCancel() {
    if (superDepth_ == 0 || depth_ > 0) {
        Faults::instance().record("Hold::SuperCancel without SuperBegin, or inside a hold");
        return;
    }
    --superDepth_;
    undoAndDiscard(super_);
}

void UndoRecorder::resume() {
    if (suspended_ > 0)
        --suspended_;
    else
        Faults::instance().record("Hold::Resume without Suspend");
}

void UndoRecorder::enable() {
    if (disabled_ > 0)
        --disabled_;
    else
        Faults::instance().record("Hold::EnableUndo without DisableUndo");
}

bool UndoRecorder::undo() {
    if (busy() || undoList_.empty()) return false;
    // The entry leaves its list first, so that a record may flush the lists meanwhile.
    UndoGroup group = std::move(undoList_.back());
    undoList_.pop_back();
    {
        const ActivityScope scope(*this, Activity::undoing);
        group.restore(1);
    }
    redoList_.push_back(std::move(group));
    return true;
}

bool UndoRecorder::redo() {
    if (busy() || redoList_.empty()) return false;
    UndoGroup group = std::move(redoList_.back());
    redoList_.pop_back();
    {
        const ActivityScope scope(*this, Activity::redoing);
        group.redo();
    }
    undoList_.push_back(std::move(group));
    return true;
}

void UndoRecorder::flush() {
    discard(undoList_);
    discard(redoList_);
}

void UndoRecorder::setLimit(size_t limit) {
    limit_ = limit;
    trim();
}

void UndoRecorder::trim() {
    while (undoList_.size() > limit_) {
        UndoGroup oldest = std::move(undoList_.front());
        undoList_.pop_front();
        discard(oldest);
    }
}

void UndoRecorder::discard(UndoGroup& group) {
    UndoGroup dying = std::move(group);
    ++discarding_;
    dying.clear();
    --discarding_;
}

void UndoRecorder::discard(List& list) {
    List dying;
    dying.swap(list);
    for (; !dying.empty(); dying.pop_back())
        discard(dying.back());
}

std::vector<std::string> UndoRecorder::namesOf(const List& list) {
    std::vector<std::string> names;
    for (const UndoGroup& group : list)
        names.push_back(group.name);
    return names;
}

void UndoRecorder::reset() {
    if (depth_ > 0) undoAndDiscard(open_);
    if (superDepth_ > 0) undoAndDiscard(super_);
    flush();
    limit_ = kDefaultLimit;
    depth_ = superDepth_ = suspended_ = disabled_ = 0;
}

}  // namespace maxhost
