#pragma once

#include "adaptor/max/Host.h"
#include "core/CUndo.h"

namespace qvo::zmx::adaptor::max {

/// Host restore object that carries one undo record of ours or of the core through the host's undo list. The
/// host owns the wrapper, the wrapper owns the record.
class CUndoWrapper : public RestoreObj {
  public:
    enum class Origin { adaptor, core };

    /// Takes `record` over.
    CUndoWrapper(CUndo* record, Origin origin);
    ~CUndoWrapper() override;

    CUndoWrapper(const CUndoWrapper&) = delete;
    CUndoWrapper& operator=(const CUndoWrapper&) = delete;

    void Restore(int isUndo) override;
    void Redo() override;
    int Size() override { return 24; }  // only feeds the host's estimate of its undo memory
    void EndHold() override {}
    TSTR Description() override { return TSTR("---"); }
    INT_PTR Execute(int, ULONG_PTR, ULONG_PTR, ULONG_PTR) override { return -1; }

    /// Releases the core's records in all live wrappers, which stay in the host's list and do nothing from
    /// then on. To be called before the core's library goes: the records' code is in it.
    static void releaseCoreRecords();

  private:
    void releaseRecord() noexcept;

    CUndo* record_;
    Origin origin_;

    // All live wrappers, newest first.
    CUndoWrapper* previous_ = nullptr;
    CUndoWrapper* next_ = nullptr;
    static CUndoWrapper* newest_;

    /// Where releaseCoreRecords goes on; a record's release may empty the host's list meanwhile.
    static CUndoWrapper* nextToRelease_;
};

}  // namespace qvo::zmx::adaptor::max
