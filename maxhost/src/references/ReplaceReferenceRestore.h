#pragma once

#include <hold.h>

#include "maxhost/src/references/RecordHold.h"

namespace maxhost {

/// A maker's reference at one index went from one target to another; either may be null.
class ReplaceReferenceRestore : public RestoreObj {
  public:
    ReplaceReferenceRestore(ReferenceMaker& maker, int which, RefTargetHandle former, RefTargetHandle target);
    ~ReplaceReferenceRestore() override;

    void Restore(int isUndo) override;
    void Redo() override;
    int Size() override { return sizeof(*this); }
    TSTR Description() override { return _T("Replace Reference"); }

  private:
    void put(RefTargetHandle target);

    ReferenceMaker& maker_;
    int which_;
    RefTargetHandle former_;
    RefTargetHandle target_;
    bool undone_ = false;
    RecordHold holdMaker_;
    RecordHold holdFormer_;
    RecordHold holdTarget_;
};

}  // namespace maxhost
