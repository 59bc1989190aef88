#pragma once

#include <string>

#include "adaptor/max/Host.h"
#include "adaptor/max/controllers/KeyTable.h"
#include "adaptor/max/controllers/LiveRef.h"
#include "adaptor/max/controllers/ZorvaKey.h"

namespace qvo::zmx::adaptor::max {

/// A host controller that holds a table of keys: the common half of the scalar and the transform controller.
///
/// It answers the host's key queries, edits the table, records every edit while the host is holding, and
/// keeps the current key: the last evaluated time and value. The current key is also where a value lives that
/// was set without a key, and the value of a controller without keys. A current time of kNoTime means that
/// the cached value is stale and the next evaluation asks the table; changes of the table make it so, and
/// end what was set without a key.
///
/// Key indices out of range do nothing. No host entry throws: a failed allocation is logged and leaves the
/// table in order.
template <typename T>
class BaseControl : public Control {
  public:
    using Key = ZorvaKey<T>;

    // Animatable

    void DeleteThis() override { delete this; }
    void GetClassName(TSTR& name) override { name = className_.c_str(); }
    SClass_ID SuperClassID() override { return superClassId_; }
    Class_ID ClassID() override { return classId_; }
    void BeginEditParams(IObjParam* ip, ULONG flags, Animatable* prev) override = 0;
    void EndEditParams(IObjParam* ip, ULONG flags, Animatable* next) override = 0;

    /// 0 while an attached core wants its keys hidden from the host, else the size of the table.
    int NumKeys() override;

    TimeValue GetKeyTime(int index) override;

    /// -1 when no key lies at `t` exactly.
    int GetKeyIndex(TimeValue t) override { return keys_.indexOf(t); }

    /// Counts from the key at `t` exactly. Without one, NEXTKEY_RIGHT gives the first key and NEXTKEY_LEFT
    /// none.
    BOOL GetNextKeyTime(TimeValue t, DWORD flags, TimeValue& nt) override;

    void DeleteKeyAtTime(TimeValue t) override;

    /// Intended: a key at a negative time counts as absent.
    BOOL IsKeyAtTime(TimeValue t, DWORD flags) override;

    /// Appends to `times`; always 0.
    int GetKeyTimes(Tab<TimeValue>& times, Interval range, DWORD flags) override;

    /// Removes the keys inside the interval and slides later ones left; see withoutTime().
    void DeleteTime(Interval iv, DWORD flags) override;

    /// TRACK_DOSEL deletes the selected keys; else TRACK_DOALL deletes all. Intended: the latter is not
    /// recorded.
    void DeleteKeys(DWORD flags) override;

    void DeleteKeyByIndex(int index) override;
    void SelectKeys(TrackHitTab& sel, DWORD flags) override;
    void SelectKeyByIndex(int i, BOOL sel) override;
    void MouseCycleStarted(TimeValue /*t*/) override {}
    void MouseCycleCompleted(TimeValue /*t*/) override {}

    // ReferenceMaker and ReferenceTarget

    /// The current key is written as it stands at the scene's time, without a time when there are no keys.
    IOResult Save(ISave* isave) override;

    /// Always IO_OK: a chunk that is not this controller's leaves it empty, a damaged one keeps what is
    /// whole.
    IOResult Load(ILoad* iload) override;

    RefResult NotifyRefChanged(Interval /*changeInt*/, RefTargetHandle /*hTarget*/, PartID& /*partID*/,
                               RefMessage /*message*/) override {
        return REF_SUCCEED;
    }

    /// Null when the host cannot make an instance of the class.
    RefTargetHandle Clone(RemapDir& remap) override;

    // Control

    /// Bakes `from` into one key per frame over its range of keys, unrecorded; a source without keys gives
    /// its present value. Null, itself and a controller of another value type change nothing.
    void Copy(Control* from) override;

    // What the controllers add to the host's interface

    virtual Key currentKey() const { return current_; }

    /// The key that stands for `t`: here the nearest one, a tie going to the earlier; time kNoTime and value
    /// zero when there is none.
    virtual Key keyAtTime(TimeValue t);

    /// Puts a key into the table, in place of one at the same time; recorded while holding. Amortised
    /// constant at the end of the table.
    void setKey(const Key& key);

    /// Takes `value` as the value of a controller without keys; not recorded. The initial value instead of
    /// one that is not finite.
    void takeValue(const T& value);

    const KeyTable<T>& keys() const { return keys_; }
    const LiveRef<BaseControl>& liveRef() const { return anchor_.ref(); }

  protected:
    BaseControl(SClass_ID superClassId, const Class_ID& classId, const char* className);
    ~BaseControl() override = default;

    /// True when the current key answers for `t`: the table is empty, or `t` was evaluated last, or both
    /// times lie after the last key.
    bool isCached(TimeValue t) const;

    /// True when there are keys and the current value is not up to date with them.
    bool isStale() const { return current_.time == kNoTime && !keys_.empty(); }

    /// Makes `key`, evaluated from the table, the current key.
    void cache(const Key& key);

    /// The common end of SetValue: records the current key while holding, makes `value` current at `t` and,
    /// in animate mode, a key. A value that is not finite is refused.
    void setValueAt(TimeValue t, const T& value);

    /// `value`, or the nearest key's when `value` is not finite, or at last the initial value.
    T usable(const T& value, TimeValue t) const;

    /// Puts one record of the whole table while holding; call it before a change of many keys.
    void recordTable();

    /// Tells all dependents that the value has changed at every time.
    void notifyChange();

    KeyTable<T> keys_;
    Key current_;

  private:
    template <typename Controller, typename RestoredKey>
    friend class ControlKeyRestore;

    void storeKey(const Key& key);
    void removeKey(int index);
    void makeStale();
    void tableChanged();
    void bake(Control& from, const Interval& range);

    template <typename Record, typename... Arguments>
    void record(const Arguments&... arguments);

    bool unkeyed_ = false;  ///< the current value was set and stands in no key
    SClass_ID superClassId_;
    Class_ID classId_;
    std::string className_;
    LiveAnchor<BaseControl> anchor_;
};

extern template class BaseControl<float>;
extern template class BaseControl<Matrix3>;

}  // namespace qvo::zmx::adaptor::max
