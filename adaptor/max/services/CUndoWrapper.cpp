#include "adaptor/max/services/CUndoWrapper.h"

#include <utility>

#include "adaptor/max/Boundary.h"

namespace qvo::zmx::adaptor::max {

CUndoWrapper* CUndoWrapper::newest_ = nullptr;
CUndoWrapper* CUndoWrapper::nextToRelease_ = nullptr;

CUndoWrapper::CUndoWrapper(CUndo* record, Origin origin) : record_(record), origin_(origin), next_(newest_) {
    if (newest_) newest_->previous_ = this;
    newest_ = this;
}

CUndoWrapper::~CUndoWrapper() {
    releaseRecord();
    if (nextToRelease_ == this) nextToRelease_ = next_;
    (previous_ ? previous_->next_ : newest_) = next_;
    if (next_) next_->previous_ = previous_;
}

void CUndoWrapper::Restore(int isUndo) {
    if (record_) guarded("CUndo::restore", [&] { record_->restore(isUndo != 0); });
}

void CUndoWrapper::Redo() {
    if (record_) guarded("CUndo::redo", [&] { record_->redo(); });
}

void CUndoWrapper::releaseRecord() noexcept {
    CUndo* const record = std::exchange(record_, nullptr);
    if (record) guarded("CUndo::release", [&] { record->release(); });
}

void CUndoWrapper::releaseCoreRecords() {
    nextToRelease_ = newest_;
    while (CUndoWrapper* const wrapper = nextToRelease_) {
        nextToRelease_ = wrapper->next_;
        if (wrapper->origin_ == Origin::core) wrapper->releaseRecord();
    }
}

}  // namespace qvo::zmx::adaptor::max
