#include "maxhost/src/references/ReplaceReferenceRestore.h"

#include "maxhost/src/references/ReferenceAccess.h"

namespace maxhost {

ReplaceReferenceRestore::ReplaceReferenceRestore(ReferenceMaker& maker, int which, RefTargetHandle former,
                                                 RefTargetHandle target)
    : maker_(maker),
      which_(which),
      former_(former),
      target_(target),
      holdMaker_(&maker),
      holdFormer_(former),
      holdTarget_(target) {}

ReplaceReferenceRestore::~ReplaceReferenceRestore() {
    if (undone_) holdTarget_.expectOrphan();
}

void ReplaceReferenceRestore::Restore(int) {
    undone_ = true;
    put(former_);
}

void ReplaceReferenceRestore::Redo() {
    undone_ = false;
    put(target_);
}

void ReplaceReferenceRestore::put(RefTargetHandle target) {
    // What was deleted for good meanwhile, outside of any hold, stays out of use.
    if (maker_.TestAFlag(A_IS_DELETED) || which_ >= maker_.NumRefs()) return;
    if (target != nullptr && target->TestAFlag(A_IS_DELETED)) target = nullptr;
    ReferenceAccess::assign(maker_, which_, maker_.GetReference(which_), target);
    ReferenceAccess::notifyReplaced(maker_, target);
}

}  // namespace maxhost
