#include <hold.h>
#include <ref.h>

#include "maxhost/src/references/DeleteRestore.h"
#include "maxhost/src/references/ReferenceAccess.h"
#include "maxhost/src/references/ReplaceReferenceRestore.h"
#include "maxhost/src/undo/Faults.h"

using maxhost::DeleteRestore;
using maxhost::Faults;
using maxhost::ReferenceAccess;
using maxhost::ReplaceReferenceRestore;

ReferenceMaker::~ReferenceMaker() {
    if (recordHolds_ > 0) Faults::instance().record("an object was destroyed that the undo list still needs");
    if (targets_.empty()) return;
    Faults::instance().record("an object was destroyed, not by DeleteMe, while it had references");
    ReferenceAccess::forgetTargets(*this);
}

RefResult ReferenceMaker::ReplaceReference(int which, RefTargetHandle newTarg, BOOL delOld) {
    if (which < 0 || which >= NumRefs()) return REF_FAIL;
    const RefTargetHandle former = GetReference(which);
    if (former == newTarg) return REF_SUCCEED;
    if (newTarg != nullptr && newTarg->TestAFlag(A_IS_DELETED)) {
        Faults::instance().record("ReplaceReference to a deleted object");
        return REF_FAIL;
    }
    if (ReferenceAccess::wouldLoop(*this, newTarg)) return REF_FAIL;

    if (theHold.Holding()) theHold.Put(new ReplaceReferenceRestore(*this, which, former, newTarg));
    ReferenceAccess::assign(*this, which, former, newTarg);
    if (delOld && former != nullptr) former->MaybeAutoDelete();
    return REF_SUCCEED;
}

RefResult ReferenceMaker::DeleteReference(int which) {
    return ReplaceReference(which, nullptr);
}

RefResult ReferenceMaker::DeleteAllRefs() {
    DeleteAllRefsToMe();
    return DeleteAllRefsFromMe();
}

RefResult ReferenceMaker::DeleteAllRefsFromMe() {
    for (int i = NumRefs(); i-- > 0;)
        DeleteReference(i);
    return REF_SUCCEED;
}

RefResult ReferenceMaker::DeleteAllRefsToMe() {
    ReferenceTarget* const self = ReferenceAccess::asTarget(this);
    if (self == nullptr || !self->HasDependents()) return REF_SUCCEED;

    // Looked up before the notice: a maker may forget its pointer as soon as it hears of it.
    struct Use {
        ReferenceMaker* maker;
        int which;
    };
    std::vector<Use> uses;
    for (ReferenceMaker* const maker : ReferenceAccess::dependents(*self)) {
        for (int i = 0; i < maker->NumRefs(); ++i)
            if (maker->GetReference(i) == self) uses.push_back({maker, i});
    }
    self->NotifyDependents(FOREVER, PART_ALL, REFMSG_TARGET_DELETED, NOTIFY_ALL, FALSE);
    for (const Use& use : uses) {
        if (theHold.Holding()) theHold.Put(new ReplaceReferenceRestore(*use.maker, use.which, self, nullptr));
        ReferenceAccess::assign(*use.maker, use.which, self, nullptr);
    }
    return REF_SUCCEED;
}

void ReferenceMaker::DeleteMe() {
    if (TestAFlag(A_IS_DELETED)) return;
    SetAFlag(A_IS_DELETED);
    DeleteAllRefs();
    if (theHold.Holding()) theHold.Put(new DeleteRestore(*this));
    if (recordHolds_ == 0) DeleteThis();
}
