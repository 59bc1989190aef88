#include "maxhost/src/references/ReferenceAccess.h"

#include <algorithm>
#include <unordered_set>

#include "maxhost/src/references/DependentList.h"

namespace maxhost {

std::vector<ReferenceMaker*> ReferenceAccess::dependents(const ReferenceTarget& target) {
    return target.dependents_ == nullptr ? std::vector<ReferenceMaker*>() : target.dependents_->makers();
}

ReferenceTarget* ReferenceAccess::asTarget(ReferenceMaker* maker) {
    return maker != nullptr && maker->IsRefTarget() ? static_cast<ReferenceTarget*>(maker) : nullptr;
}

void ReferenceAccess::assign(ReferenceMaker& maker, int which, RefTargetHandle former,
                             RefTargetHandle target) {
    maker.SetReference(which, target);
    if (target != nullptr) {
        if (target->dependents_ == nullptr) target->dependents_ = std::make_shared<DependentList>();
        target->dependents_->add(&maker);
        maker.targets_.push_back(target);
    }
    if (former == nullptr || former->dependents_ == nullptr || !former->dependents_->remove(&maker)) return;
    // The latest reference is usually the first to go.
    auto& targets = maker.targets_;
    const auto found = std::find(targets.rbegin(), targets.rend(), former);
    if (found != targets.rend()) targets.erase(std::next(found).base());
}

void ReferenceAccess::forgetTargets(ReferenceMaker& maker) {
    for (const RefTargetHandle target : maker.targets_)
        target->dependents_->remove(&maker);
    maker.targets_.clear();
}

void ReferenceAccess::forgetDependents(ReferenceTarget& target) {
    for (ReferenceMaker* const maker : dependents(target)) {
        for (int i = 0; i < maker->NumRefs(); ++i)
            if (maker->GetReference(i) == &target) maker->SetReference(i, nullptr);
        auto& targets = maker->targets_;
        targets.erase(std::remove(targets.begin(), targets.end(), &target), targets.end());
    }
    target.dependents_->clear();
}

bool ReferenceAccess::isKept(ReferenceTarget& target) {
    if (target.dependents_ == nullptr) return false;
    const DependentList& list = *target.dependents_;
    for (size_t i = 0; i < list.slotCount(); ++i)
        if (list.at(i) != nullptr && list.at(i)->IsRealDependency(&target)) return true;
    return false;
}

bool ReferenceAccess::wouldLoop(ReferenceMaker& maker, RefTargetHandle target) {
    if (target == nullptr) return false;
    if (target == &maker) return true;
    ReferenceTarget* const start = asTarget(&maker);
    if (start == nullptr || target->NumRefs() == 0) return false;

    std::unordered_set<ReferenceMaker*> seen;
    std::vector<ReferenceTarget*> open{start};
    while (!open.empty()) {
        ReferenceTarget* const current = open.back();
        open.pop_back();
        for (ReferenceMaker* const dependent : dependents(*current)) {
            if (!seen.insert(dependent).second) continue;
            if (dependent == target) return true;
            PartID part = reinterpret_cast<PartID>(target);
            if (dependent->NotifyRefChanged(FOREVER, current, part, REFMSG_LOOPTEST) == REF_FAIL) return true;
            if (ReferenceTarget* const next = asTarget(dependent)) open.push_back(next);
        }
    }
    return false;
}

void ReferenceAccess::notifyReplaced(ReferenceMaker& maker, RefTargetHandle target) {
    if (maker.TestAFlag(A_IS_DELETED)) return;
    PartID part = PART_ALL;
    if (target != nullptr && maker.NotifyRefChanged(FOREVER, target, part, REFMSG_CHANGE) == REF_STOP) return;
    if (ReferenceTarget* const self = asTarget(&maker))
        self->NotifyDependents(FOREVER, PART_ALL, REFMSG_CHANGE);
}

void ReferenceAccess::release(ReferenceMaker& object) {
    if (--object.recordHolds_ > 0) return;
    if (object.TestAFlag(A_IS_DELETED)) {
        object.DeleteThis();
        return;
    }
    if (!object.mayBeOrphan_) return;
    object.mayBeOrphan_ = false;
    if (ReferenceTarget* const target = asTarget(&object)) target->MaybeAutoDelete();
}

}  // namespace maxhost
