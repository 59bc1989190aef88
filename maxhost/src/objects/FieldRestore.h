#pragma once

#include <hold.h>
#include <ref.h>

#include <utility>

#include "maxhost/src/references/RecordHold.h"

namespace maxhost {

/// Undo record of one field of an object: puts the former or the later value back and tells the dependents.
template <class Value>
class FieldRestore : public RestoreObj {
  public:
    FieldRestore(ReferenceTarget& owner, Value& field, Value after)
        : owner_(owner), hold_(&owner), field_(field), before_(field), after_(std::move(after)) {}

    void Restore(int /*isUndo*/) override { set(before_); }
    void Redo() override { set(after_); }
    int Size() override { return static_cast<int>(sizeof(*this)); }
    TSTR Description() override { return TSTR(_T("Object setting")); }

  private:
    void set(const Value& value) {
        field_ = value;
        owner_.NotifyDependents(FOREVER, PART_ALL, REFMSG_CHANGE);
    }

    ReferenceTarget& owner_;
    RecordHold hold_;
    Value& field_;
    Value before_, after_;
};

/// Sets a field of an object, recorded while holding, and tells the dependents.
template <class Value>
void changeField(ReferenceTarget& owner, Value& field, Value value) {
    if (theHold.Holding()) theHold.Put(new FieldRestore<Value>(owner, field, value));
    field = std::move(value);
    owner.NotifyDependents(FOREVER, PART_ALL, REFMSG_CHANGE);
}

}  // namespace maxhost
