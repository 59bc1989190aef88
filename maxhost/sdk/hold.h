#pragma once

#include "baseinterface.h"
#include "coreexp.h"
#include "strclass.h"

/// One undoable change. Made only while `theHold.Holding()`, handed to `theHold.Put` and from then on owned
/// by the host, which deletes it through the virtual destructor when its entry leaves the undo and redo
/// lists.
class RestoreObj : public InterfaceServer {
  public:
    /// `isUndo` is 1 for the user's undo, 0 when a hold is cancelled.
    virtual void Restore(int isUndo) = 0;
    virtual void Redo() = 0;
    /// Bytes, for a memory estimate only.
    virtual int Size() { return 1; }
    /// The hold that the record was put into has ended.
    virtual void EndHold() {}
    virtual TSTR Description() { return TSTR(_T("---")); }
    virtual INT_PTR Execute(int /*cmd*/, ULONG_PTR /*arg1*/ = 0, ULONG_PTR /*arg2*/ = 0,
                            ULONG_PTR /*arg3*/ = 0) {
        return -1;
    }
};

/// The undo recorder; there is one, `theHold`.
///
/// `Begin` opens a group (nesting counts), the outermost `Accept` makes it an entry of the undo list, and
/// `Cancel` undoes everything since the outermost `Begin`. A caller's mistake (`Put` outside a hold;
/// `Accept`, `Cancel` or `End` without `Begin`) changes nothing and is noted as a fault for tests; a record
/// put outside a hold is deleted.
class CoreExport Hold {
  public:
    void Begin();
    /// Nonzero between `Begin` and its end; 0 while suspended and during undo, redo and cancel.
    int Holding();
    /// Takes over `rob`. Constant cost.
    void Put(RestoreObj* rob);

    /// Ends one level. The outermost one makes an entry under its name and empties the redo list, if anything
    /// was recorded. The name is copied. Simplified: numbers of string resources give an entry without a
    /// name.
    void Accept(int resId);
    void Accept(TCHAR* name);
    /// Restores (newest first) and deletes all records since the outermost `Begin`, and ends one level.
    void Cancel();
    /// Restores all records of the open group, newest first, and keeps them; the group stays open.
    void Restore();
    /// Deletes the records of the open group without restoring; the group stays open.
    void Release();
    /// Ends one level; the outermost one deletes the records without restoring and makes no entry.
    void End();

    /// Groups between the pair become one entry. `Cancel` inside undoes its own group only, `SuperCancel`
    /// all.
    void SuperBegin();
    void SuperAccept(int resId);
    void SuperAccept(TCHAR* name);
    void SuperCancel();

    /// Counted.
    void Suspend();
    int IsSuspended();
    void Resume();

    /// During undo or cancel: nonzero, and `isUndo` tells which.
    int Restoring(int& isUndo);
    int Redoing();
    int RestoreOrRedoing();

    /// Counted; while disabled, `Accept` drops the records.
    void DisableUndo();
    void EnableUndo();
    BOOL IsUndoDisabled();

    int GetBeginDepth();
};

extern CoreExport Hold theHold;

/// Suspends `theHold` for a scope.
class HoldSuspend : public MaxHeapOperators {
  public:
    explicit HoldSuspend(BOOL suspend = TRUE) : suspended_(suspend) {
        if (suspended_) theHold.Suspend();
    }
    ~HoldSuspend() {
        if (suspended_) theHold.Resume();
    }
    HoldSuspend(const HoldSuspend&) = delete;
    HoldSuspend& operator=(const HoldSuspend&) = delete;

  private:
    BOOL suspended_;
};
