#pragma once

#include <hold.h>

#include "maxhost/src/references/RecordHold.h"

namespace maxhost {

/// An object was deleted. It stays constructed, marked A_IS_DELETED, while this record lives.
class DeleteRestore : public RestoreObj {
  public:
    explicit DeleteRestore(ReferenceMaker& object) : object_(object), hold_(&object) {}
    ~DeleteRestore() override;

    void Restore(int isUndo) override;
    void Redo() override;
    int Size() override { return sizeof(*this); }
    TSTR Description() override { return _T("Delete"); }

  private:
    ReferenceMaker& object_;
    RecordHold hold_;
};

}  // namespace maxhost
