#include "maxhost/src/undo/UndoGroup.h"

#include <iterator>
#include <utility>

namespace maxhost {

UndoGroup& UndoGroup::operator=(UndoGroup&& other) noexcept {
    clear();
    name = std::move(other.name);
    records_ = std::move(other.records_);
    other.records_.clear();
    return *this;
}

void UndoGroup::append(UndoGroup& later) {
    if (records_.empty()) {
        records_.swap(later.records_);
        return;
    }
    records_.insert(records_.end(), std::make_move_iterator(later.records_.begin()),
                    std::make_move_iterator(later.records_.end()));
    later.records_.clear();
}

void UndoGroup::restore(int isUndo) {
    for (auto record = records_.rbegin(); record != records_.rend(); ++record)
        (*record)->Restore(isUndo);
}

void UndoGroup::redo() {
    for (const auto& record : records_)
        record->Redo();
}

void UndoGroup::endHold() {
    for (const auto& record : records_)
        record->EndHold();
}

void UndoGroup::clear() {
    while (!records_.empty())
        records_.pop_back();
}

}  // namespace maxhost
