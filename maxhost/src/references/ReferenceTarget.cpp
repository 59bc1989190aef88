#include <ref.h>

#include "maxhost/src/references/DependentList.h"
#include "maxhost/src/references/ReferenceAccess.h"
#include "maxhost/src/undo/Faults.h"

using maxhost::DependentList;
using maxhost::Faults;
using maxhost::ReferenceAccess;

namespace {

/// The dependents of one sender, while a message goes through them. Keeps the list alive even if the sender
/// dies meanwhile; makers that arrive during the walk are not told.
class Walk {
  public:
    Walk(std::shared_ptr<DependentList> list, RefTargetHandle from, PartID parts)
        : sender(from), part(parts), list_(std::move(list)), end_(list_->slotCount()) {
        list_->beginWalk();
    }
    Walk(Walk&& other) noexcept
        : sender(other.sender),
          part(other.part),
          list_(std::move(other.list_)),
          next_(other.next_),
          end_(other.end_) {}
    Walk& operator=(Walk&&) = delete;
    ~Walk() {
        if (list_ != nullptr) list_->endWalk();
    }

    bool done() const { return next_ == end_; }
    ReferenceMaker* next() { return list_->at(next_++); }
    /// Whether the maker that `next` gave last is still there.
    bool stillThere(ReferenceMaker* maker) const { return list_->at(next_ - 1) == maker; }

    RefTargetHandle sender;
    PartID part;

  private:
    std::shared_ptr<DependentList> list_;
    size_t next_ = 0;
    size_t end_;
};

}  // namespace

ReferenceTarget::~ReferenceTarget() {
    if (dependents_ == nullptr) return;
    if (!dependents_->empty())
        Faults::instance().record("an object was destroyed, not by DeleteMe, while in use");
    ReferenceAccess::forgetDependents(*this);
}

RefResult ReferenceTarget::NotifyDependents(Interval changeInt, PartID partID, RefMessage message,
                                            SClass_ID sclass, BOOL propagate, RefTargetHandle hTarg) {
    if (!HasDependents()) return REF_SUCCEED;
    // An own stack: chains of dependents may be longer than the program's stack bears.
    std::vector<Walk> walks;
    walks.emplace_back(dependents_, hTarg == nullptr ? this : hTarg, partID);
    while (!walks.empty()) {
        Walk& walk = walks.back();
        if (walk.done()) {
            walks.pop_back();
            continue;
        }
        ReferenceMaker* const maker = walk.next();
        if (maker == nullptr || (sclass != NOTIFY_ALL && maker->SuperClassID() != sclass)) continue;
        PartID part = walk.part;
        const RefResult answer = maker->NotifyRefChanged(changeInt, walk.sender, part, message);
        if (!propagate || answer == REF_STOP || !walk.stillThere(maker)) continue;
        ReferenceTarget* const next = ReferenceAccess::asTarget(maker);
        if (next != nullptr && next->HasDependents()) walks.emplace_back(next->dependents_, next, part);
    }
    return REF_SUCCEED;
}

void ReferenceTarget::BaseClone(ReferenceTarget* from, ReferenceTarget* to, RemapDir& remap) {
    if (from == nullptr || to == nullptr || from == to) return;
    remap.AddEntry(from, to);
}

RefResult ReferenceTarget::TransferReferences(RefTargetHandle oldTarget, BOOL delOld) {
    if (oldTarget == nullptr || oldTarget == this) return REF_FAIL;
    RefResult result = REF_SUCCEED;
    for (ReferenceMaker* const maker : ReferenceAccess::dependents(*oldTarget)) {
        if (maker == this) continue;
        for (int i = 0; i < maker->NumRefs(); ++i) {
            if (maker->GetReference(i) != oldTarget) continue;
            if (maker->ReplaceReference(i, this, FALSE) != REF_SUCCEED) result = REF_FAIL;
        }
    }
    NotifyDependents(FOREVER, PART_ALL, REFMSG_CHANGE);
    if (delOld) oldTarget->MaybeAutoDelete();
    return result;
}

RefResult ReferenceTarget::AutoDelete() {
    DeleteMe();
    return REF_SUCCEED;
}

RefResult ReferenceTarget::MaybeAutoDelete() {
    if (TestAFlag(A_LOCK_TARGET | A_IS_DELETED)) return REF_FAIL;
    return ReferenceAccess::isKept(*this) ? REF_FAIL : AutoDelete();
}

BOOL ReferenceTarget::HasDependents() {
    return dependents_ != nullptr && !dependents_->empty() ? TRUE : FALSE;
}
