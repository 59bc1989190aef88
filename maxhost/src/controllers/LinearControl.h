#pragma once

#include <control.h>

#include "maxhost/src/controllers/KeyTable.h"
#include "maxhost/src/controllers/LinearTraits.h"

namespace maxhost {

/// Keyframe controller of the host: straight interpolation between keys, constant outside them, and a
/// constant value while it has none. A hold that edits it gets one record with the former keys, at the first
/// edit. Simplified: keys cannot be selected, and no key is added at frame 0 (see control.h). Non-finite
/// values are ignored.
template <class Traits>
class LinearControl final : public Control {
  public:
    using Value = typename Traits::Value;
    using Keys = KeyTable<Value>;

    // Animatable
    void DeleteThis() override { delete this; }
    void GetClassName(TSTR& s) override { s = Traits::kName; }
    Class_ID ClassID() override { return Class_ID(Traits::kClass, 0); }
    SClass_ID SuperClassID() override { return Traits::kSuperClass; }
    int NumKeys() override { return keys_.size(); }
    /// 0 for an index out of range.
    TimeValue GetKeyTime(int index) override { return keys_.has(index) ? keys_[index].time : 0; }
    /// -1 when there is no key at `t`.
    int GetKeyIndex(TimeValue t) override { return keys_.indexOf(t); }
    /// The nearest key strictly after (NEXTKEY_RIGHT) or before `t`.
    BOOL GetNextKeyTime(TimeValue t, DWORD flags, TimeValue& nt) override;
    void DeleteKeyAtTime(TimeValue t) override { DeleteKeyByIndex(keys_.indexOf(t)); }
    BOOL IsKeyAtTime(TimeValue t, DWORD /*flags*/) override { return keys_.indexOf(t) >= 0 ? TRUE : FALSE; }
    /// Appends; an inverted range means all keys. Returns how many.
    int GetKeyTimes(Tab<TimeValue>& times, Interval range, DWORD flags) override;
    Interval GetTimeRange(DWORD flags) override;
    void DeleteTime(Interval iv, DWORD flags) override;
    void DeleteKeys(DWORD flags) override;
    void DeleteKeyByIndex(int index) override;

    // ReferenceMaker, ReferenceTarget
    RefResult NotifyRefChanged(Interval, RefTargetHandle, PartID&, RefMessage) override {
        return REF_SUCCEED;
    }
    RefTargetHandle Clone(RemapDir& remap) override;
    IOResult Save(ISave* isave) override;
    /// Keys that do not rise in time, or are not finite, are dropped.
    IOResult Load(ILoad* iload) override;

    // Control
    void GetValue(TimeValue t, void* val, Interval& valid, GetSetMethod method = CTRL_ABSOLUTE) override;
    void SetValue(TimeValue t, void* val, int commit = 1, GetSetMethod method = CTRL_ABSOLUTE) override;
    /// From a controller of the same class: everything; else of the same value type: the value at 0.
    void Copy(Control* from) override;

    // For the controller that this one is a part of.
    Value valueAt(TimeValue t) const;
    const Keys& keys() const { return keys_; }
    /// Replaces the keys and the value without keys, recorded while holding, without telling dependents.
    void replaceAll(const Keys& keys, const Value& constant);
    const Value& constant() const { return constant_; }

  private:
    class KeysRestore;

    Interval validityAt(TimeValue t) const;
    /// Puts the hold's record of this controller if it has none yet. To be called before every edit.
    void recordEdit();
    void changed() { NotifyDependents(FOREVER, PART_ALL, REFMSG_CHANGE); }
    IOResult loadKeys(ILoad* iload);

    Keys keys_;
    Value constant_ = Traits::neutral();
};

extern template class LinearControl<FloatTraits>;
extern template class LinearControl<PositionTraits>;
extern template class LinearControl<RotationTraits>;
extern template class LinearControl<ScaleTraits>;

}  // namespace maxhost
