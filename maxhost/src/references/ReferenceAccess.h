#pragma once

#include <vector>

#include <ref.h>

namespace maxhost {

/// What the host does with references beyond the public calls. Nothing here is recorded for undo.
class CoreExport ReferenceAccess {
  public:
    /// Makers that refer to `target`, in order of registration.
    static std::vector<ReferenceMaker*> dependents(const ReferenceTarget& target);

    /// Stores `target` at index `which` of `maker` and registers the dependency in place of that on `former`,
    /// which is what the maker referred to there (it may have forgotten by itself).
    static void assign(ReferenceMaker& maker, int which, RefTargetHandle former, RefTargetHandle target);

    /// Takes a dying maker out of the dependents lists of its targets.
    static void forgetTargets(ReferenceMaker& maker);
    /// Makes the dependents of a dying target forget it.
    static void forgetDependents(ReferenceTarget& target);

    /// Whether something refers to `target` in earnest, that is by a strong reference.
    static bool isKept(ReferenceTarget& target);

    /// Whether `maker` referring to `target` would close a loop. Asks the dependents of `maker`, directly and
    /// indirectly, with REFMSG_LOOPTEST; a target without references of its own needs no asking.
    static bool wouldLoop(ReferenceMaker& maker, RefTargetHandle target);

    /// Tells the maker and its dependents that its reference changed. Deleted makers are not told.
    static void notifyReplaced(ReferenceMaker& maker, RefTargetHandle target);

    /// Null when the maker is not a target itself.
    static ReferenceTarget* asTarget(ReferenceMaker* maker);

  private:
    friend class RecordHold;

    static void hold(ReferenceMaker& object) { ++object.recordHolds_; }
    static void release(ReferenceMaker& object);
    static void markPossibleOrphan(ReferenceMaker& object) { object.mayBeOrphan_ = true; }
};

}  // namespace maxhost
