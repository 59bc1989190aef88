#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include "animtbl.h"
#include "channels.h"
#include "plugapi.h"

class ReferenceMaker;
class ReferenceTarget;
typedef ReferenceTarget* RefTargetHandle;
typedef ReferenceMaker* RefMakerHandle;

namespace maxhost {
class DependentList;
class ReferenceAccess;
}  // namespace maxhost

typedef unsigned int RefMessage;
enum RefResult { REF_FAIL = 0, REF_SUCCEED = 1, REF_STOP, REF_INVALID, REF_DONTCARE };

/// Asked before a reference is made; `partID` carries the wanted target, REF_FAIL means a loop.
constexpr RefMessage REFMSG_LOOPTEST = 0x10;
constexpr RefMessage REFMSG_TARGET_DELETED = 0x20;
constexpr RefMessage REFMSG_CHANGE = 0x50;

/// Wild card super class of NotifyDependents.
constexpr SClass_ID NOTIFY_ALL = 0xFFFFFFF0;

/// Remembers which clone belongs to which original during one clone operation.
class RemapDir : public InterfaceServer {
  public:
    /// Null when `from` was not cloned yet.
    virtual RefTargetHandle FindMapping(RefTargetHandle from) = 0;
    virtual void AddEntry(RefTargetHandle from, RefTargetHandle to) = 0;
    /// Clones `old` once per operation; later calls give the same clone. Null gives null.
    virtual ReferenceTarget* CloneRef(ReferenceTarget* old) = 0;
    virtual void Clear() = 0;
    virtual void DeleteThis() = 0;
};

class CoreExport DefaultRemapDir : public RemapDir {
  public:
    RefTargetHandle FindMapping(RefTargetHandle from) override;
    void AddEntry(RefTargetHandle from, RefTargetHandle to) override;
    ReferenceTarget* CloneRef(ReferenceTarget* old) override;
    void Clear() override;
    void DeleteThis() override;

  private:
    std::unordered_map<RefTargetHandle, RefTargetHandle> clones_;
};

/// Something that refers to targets by index.
class CoreExport ReferenceMaker : public Animatable {
  public:
    SClass_ID SuperClassID() override { return REF_MAKER_CLASS_ID; }
    int IsRefMaker() override { return 1; }
    virtual int IsRefTarget() { return 0; }

    /// A target that this maker refers to has sent a message.
    virtual RefResult NotifyRefChanged(Interval changeInt, RefTargetHandle hTarget, PartID& partID,
                                       RefMessage message) = 0;
    virtual int NumRefs() { return 0; }
    virtual RefTargetHandle GetReference(int /*i*/) { return nullptr; }
    /// Stores the pointer and nothing else. Called by the host only.
    virtual void SetReference(int /*i*/, RefTargetHandle /*target*/) {}
    /// FALSE for a weak reference, which does not keep the target alive.
    virtual BOOL IsRealDependency(ReferenceTarget* /*target*/) { return TRUE; }

    virtual IOResult Save(ISave* /*isave*/) { return IO_OK; }
    virtual IOResult Load(ILoad* /*iload*/) { return IO_OK; }

    /// Refers to `newTarg` (may be null) at index `which`; recorded while holding. REF_FAIL, and nothing
    /// changed, for a bad index or when a loop would arise. With `delOld` the former target is auto-deleted
    /// if nothing else keeps it. Constant cost, apart from the loop test, which walks the dependents of this
    /// maker.
    RefResult ReplaceReference(int which, RefTargetHandle newTarg, BOOL delOld = TRUE);
    RefResult DeleteReference(int which);
    RefResult DeleteAllRefs();
    /// Drops all references of this maker; targets that nothing else keeps are auto-deleted.
    RefResult DeleteAllRefsFromMe();
    /// Sends REFMSG_TARGET_DELETED to all dependents, then makes them let go. Does nothing for a mere maker.
    RefResult DeleteAllRefsToMe();
    /// Sends REFMSG_TARGET_DELETED, drops all references from and to this object, then DeleteThis. While
    /// holding, or while an undo record still needs it, it is only marked A_IS_DELETED and destroyed with the
    /// last such record.
    void DeleteMe();

  protected:
    ReferenceMaker() = default;
    ~ReferenceMaker() override;

  private:
    friend class maxhost::ReferenceAccess;

    std::vector<RefTargetHandle> targets_;  ///< whose dependents lists hold this maker, once per reference
    int recordHolds_ = 0;                   ///< undo records that need this object
    bool mayBeOrphan_ = false;              ///< an undo has taken the only reference that is known
};

/// Something that can be referred to. Keeps the list of its dependents, in the order in which they were
/// registered.
class CoreExport ReferenceTarget : public ReferenceMaker {
  public:
    SClass_ID SuperClassID() override { return REF_TARGET_CLASS_ID; }
    int IsRefTarget() override { return 1; }

    /// Calls NotifyRefChanged of every dependent whose super class id is `sclass` (NOTIFY_ALL: any) and, with
    /// `propagate`, goes on to their dependents unless one answers REF_STOP. Each dependent is told once,
    /// however many of its references lead here. Linear in the dependents reached; no recursion.
    RefResult NotifyDependents(Interval changeInt, PartID partID, RefMessage message,
                               SClass_ID sclass = NOTIFY_ALL, BOOL propagate = TRUE,
                               RefTargetHandle hTarg = nullptr);

    /// A copy with copied references; null for classes that cannot be cloned. Must call BaseClone(this, copy,
    /// remap).
    virtual RefTargetHandle Clone(RemapDir& /*remap*/) { return nullptr; }
    /// Copies what every target has (application data) and notes the pair in `remap`.
    void BaseClone(ReferenceTarget* from, ReferenceTarget* to, RemapDir& remap);

    /// Called on the new target: everything that referred to `oldTarget` now refers to this one, recorded
    /// while holding; then REFMSG_CHANGE goes to the dependents and, with `delOld`, the old target is
    /// auto-deleted.
    RefResult TransferReferences(RefTargetHandle oldTarget, BOOL delOld = FALSE);

    /// What happens when the last strong reference goes: DeleteMe. Nodes do nothing instead.
    virtual RefResult AutoDelete();
    /// AutoDelete, unless a strong dependent exists or A_LOCK_TARGET or A_IS_DELETED is set.
    RefResult MaybeAutoDelete();
    BOOL HasDependents();

  protected:
    ReferenceTarget() = default;
    ~ReferenceTarget() override;

  private:
    friend class maxhost::ReferenceAccess;

    std::shared_ptr<maxhost::DependentList> dependents_;
};
