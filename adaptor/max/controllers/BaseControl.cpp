#include "adaptor/max/controllers/BaseControl.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>

#include "adaptor/max/Boundary.h"
#include "adaptor/max/controllers/ControlCompleteKeyRestore.h"
#include "adaptor/max/controllers/ControlKeyAppendRestore.h"
#include "adaptor/max/controllers/ControlKeyDeleteRestore.h"
#include "adaptor/max/controllers/ControlKeyInsertRestore.h"
#include "adaptor/max/controllers/ControlKeyModRestore.h"
#include "adaptor/max/controllers/KeyChunk.h"
#include "adaptor/max/controllers/KeyRange.h"
#include "adaptor/max/controllers/KeyValue.h"
#include "adaptor/max/controllers/TimeDeletion.h"
#include "adaptor/max/plugin/UtilityManager.h"

namespace qvo::zmx::adaptor::max {
namespace {

/// The system's millisecond counter taken as a time. Any time would do: it only refreshes a cached value.
TimeValue tickCountTime() {
    return static_cast<TimeValue>(GetTickCount());
}

}  // namespace

template <typename T>
BaseControl<T>::BaseControl(SClass_ID superClassId, const Class_ID& classId, const char* className)
    : current_{0, kNoTime, KeyValue<T>::initial()},
      superClassId_(superClassId),
      classId_(classId),
      className_(className),
      anchor_(*this) {}

// Queries

template <typename T>
int BaseControl<T>::NumKeys() {
    return UtilityManager::instance().queryEvent(nullptr) ? 0 : keys_.size();
}

template <typename T>
TimeValue BaseControl<T>::GetKeyTime(int index) {
    return keys_.isIndex(index) ? keys_[index].time : 0;
}

template <typename T>
BOOL BaseControl<T>::GetNextKeyTime(TimeValue t, DWORD flags, TimeValue& nt) {
    int index = GetKeyIndex(t);
    if (flags & NEXTKEY_LEFT) --index;
    if (flags & NEXTKEY_RIGHT) ++index;
    if (index < 0 || index >= NumKeys()) return FALSE;
    nt = GetKeyTime(index);
    return TRUE;
}

template <typename T>
BOOL BaseControl<T>::IsKeyAtTime(TimeValue t, DWORD /*flags*/) {
    return keys_.indexOf(t) >= 0 && t >= 0;
}

template <typename T>
int BaseControl<T>::GetKeyTimes(Tab<TimeValue>& times, Interval range, DWORD /*flags*/) {
    guarded("GetKeyTimes", [&] {
        for (int i = keys_.lowerBound(range.Start()); i < keys_.size(); ++i) {
            TimeValue time = keys_[i].time;
            if (!range.InInterval(time)) break;
            times.Append(1, &time);
        }
    });
    return 0;
}

template <typename T>
typename BaseControl<T>::Key BaseControl<T>::keyAtTime(TimeValue t) {
    const int index = keys_.nearest(t);
    return index < 0 ? Key{0, kNoTime, KeyValue<T>::zero()} : keys_[index];
}

// Edits

template <typename T>
template <typename Record, typename... Arguments>
void BaseControl<T>::record(const Arguments&... arguments) {
    if (theHold.Holding()) theHold.Put(new Record(*this, arguments...));  // the host's from here on
}

template <typename T>
void BaseControl<T>::recordTable() {
    record<ControlCompleteKeyRestore<BaseControl, Key>>();
}

template <typename T>
void BaseControl<T>::notifyChange() {
    const Interval forever = FOREVER;
    NotifyDependents(forever, PART_ALL, REFMSG_CHANGE, NOTIFY_ALL, TRUE);
}

template <typename T>
void BaseControl<T>::makeStale() {
    current_.time = kNoTime;
    unkeyed_ = false;
}

template <typename T>
void BaseControl<T>::tableChanged() {
    makeStale();
    notifyChange();
}

template <typename T>
void BaseControl<T>::storeKey(const Key& key) {
    if (keys_.empty() || key.time > keys_.last().time) {
        record<ControlKeyAppendRestore<BaseControl, Key>>(key.time);
        keys_.append(key);
        return;
    }
    const int index = keys_.lowerBound(key.time);
    if (keys_[index].time == key.time) {
        record<ControlKeyModRestore<BaseControl, Key>>(index, keys_[index]);
        keys_[index] = key;
    } else {
        record<ControlKeyInsertRestore<BaseControl, Key>>(index, key.time);
        keys_.insert(index, key);
    }
}

template <typename T>
void BaseControl<T>::setKey(const Key& key) {
    storeKey({key.flags, key.time, KeyValue<T>::written(key.value)});
    tableChanged();
}

template <typename T>
void BaseControl<T>::removeKey(int index) {
    if (!keys_.isIndex(index)) return;
    record<ControlKeyDeleteRestore<BaseControl, Key>>(index, keys_[index]);
    keys_.erase(index);
    tableChanged();
}

template <typename T>
void BaseControl<T>::DeleteKeyAtTime(TimeValue t) {
    guarded("DeleteKeyAtTime", [&] { removeKey(keys_.indexOf(t)); });
}

template <typename T>
void BaseControl<T>::DeleteKeyByIndex(int index) {
    guarded("DeleteKeyByIndex", [&] { removeKey(index); });
}

template <typename T>
void BaseControl<T>::DeleteKeys(DWORD flags) {
    guarded("DeleteKeys", [&] {
        if (flags & TRACK_DOSEL) {
            for (int i = 0; i < keys_.size();) {
                if (keys_[i].flags == 0) {
                    ++i;
                } else {
                    removeKey(i);
                }
            }
        } else if (flags & TRACK_DOALL) {
            keys_.clear();
            tableChanged();
        }
    });
}

template <typename T>
void BaseControl<T>::DeleteTime(Interval iv, DWORD flags) {
    guarded("DeleteTime", [&] {
        // Most cuts lie behind the last key: nodes that move only at the start are cleared from some time on.
        if (keys_.lowerBound(iv.Start()) == keys_.size()) return;
        KeyTable<T> rest = withoutTime(keys_, iv, flags);
        if (rest.size() == keys_.size() && rest.last().time == keys_.last().time) return;
        recordTable();
        keys_ = std::move(rest);
        tableChanged();
    });
}

template <typename T>
void BaseControl<T>::SelectKeys(TrackHitTab& sel, DWORD flags) {
    if (flags & SELKEYS_CLEARKEYS) {
        for (int i = 0; i < keys_.size(); ++i)
            keys_[i].flags = 0;
    } else if (flags & (SELKEYS_SELECT | SELKEYS_DESELECT)) {
        for (int i = 0; i < sel.Count(); ++i) {
            const int index = static_cast<int>(sel[i].hit);
            if (keys_.isIndex(index)) keys_[index].flags = flags & SELKEYS_SELECT ? 1 : 0;
        }
    }
    notifyChange();
}

template <typename T>
void BaseControl<T>::SelectKeyByIndex(int i, BOOL sel) {
    if (!keys_.isIndex(i)) return;
    keys_[i].flags = static_cast<DWORD>(sel);
    notifyChange();
}

// Values

template <typename T>
bool BaseControl<T>::isCached(TimeValue t) const {
    if (keys_.empty()) return true;
    if (isStale()) return false;
    const TimeValue last = keys_.last().time;
    return t == current_.time || (t > last && current_.time > last);
}

template <typename T>
void BaseControl<T>::cache(const Key& key) {
    current_ = key;
    unkeyed_ = false;
}

template <typename T>
void BaseControl<T>::setValueAt(TimeValue t, const T& value) {
    guarded("SetValue", [&] {
        if (!KeyValue<T>::isFinite(value)) {
            util::logLine(util::Log::kWarning, className_, ": a value that is not finite is refused at tick ",
                          t);
            return;
        }
        using CurrentRecord = ControlKeyModRestore<BaseControl, Key>;
        record<CurrentRecord>(CurrentRecord::kCurrentKey, current_);
        current_ = {0, t, KeyValue<T>::written(value)};
        const bool makesKey = Animating() != 0;
        unkeyed_ = !makesKey && t != kNoTime;
        if (makesKey) storeKey(current_);
        notifyChange();
    });
}

template <typename T>
void BaseControl<T>::takeValue(const T& value) {
    current_ = {0, kNoTime, usable(value, kNoTime)};
    unkeyed_ = false;
    notifyChange();
}

template <typename T>
T BaseControl<T>::usable(const T& value, TimeValue t) const {
    if (KeyValue<T>::isFinite(value)) return KeyValue<T>::written(value);
    const int nearest = keys_.nearest(t);
    if (nearest >= 0 && KeyValue<T>::isFinite(keys_[nearest].value))
        return KeyValue<T>::written(keys_[nearest].value);
    return KeyValue<T>::initial();
}

// Scene files, copies

template <typename T>
IOResult BaseControl<T>::Save(ISave* isave) {
    return guarded("Save", IO_ERROR, [&] {
        const bool cached = !keys_.empty() && !unkeyed_;
        // What is written must not tell when the controller was last looked at: a scene that is saved, opened
        // and saved again gives the same bytes.
        if (keys_.empty()) makeStale();
        if (cached) cache(this->keyAtTime(GetCOREInterface()->GetTime()));
        const IOResult result = saveKeys(*isave, keys_, current_);
        if (cached) makeStale();  // blended without the parent: not for the next evaluation
        return result;
    });
}

template <typename T>
IOResult BaseControl<T>::Load(ILoad* iload) {
    guarded("Load", [&] {
        keys_.clear();
        makeStale();
        loadKeys(*iload, keys_, current_);
        makeStale();
        Interval valid = FOREVER;
        this->GetValue(tickCountTime(), &current_.value, valid, CTRL_ABSOLUTE);
    });
    return IO_OK;
}

template <typename T>
RefTargetHandle BaseControl<T>::Clone(RemapDir& remap) {
    return guarded<RefTargetHandle>("Clone", nullptr, [&]() -> RefTargetHandle {
        const auto discard = [](Control* instance) { instance->DeleteThis(); };
        std::unique_ptr<Control, decltype(discard)> instance(
            static_cast<Control*>(GetCOREInterface()->CreateInstance(superClassId_, classId_)), discard);
        auto* const clone = dynamic_cast<BaseControl*>(instance.get());
        if (!clone) return nullptr;
        clone->keys_ = keys_;
        clone->current_ = current_;
        clone->unkeyed_ = unkeyed_;
        BaseClone(this, clone, remap);
        return instance.release();  // the host's
    });
}

template <typename T>
void BaseControl<T>::bake(Control& from, const Interval& range) {
    const int step = std::max(GetTicksPerFrame(), 1);
    for (std::int64_t t = range.Start(); t <= range.End(); t += step) {
        const auto time = static_cast<TimeValue>(t);
        keys_.append({0, time, KeyValue<T>::written(KeyValue<T>::of(from, time))});
    }
}

template <typename T>
void BaseControl<T>::Copy(Control* from) {
    if (!from || from == this || from->SuperClassID() != superClassId_) return;
    guarded("Copy", [&] {
        keys_.clear();
        makeStale();
        if (const std::optional<Interval> range = keyRange(*from)) {
            bake(*from, *range);
            cache(this->keyAtTime(tickCountTime()));
            notifyChange();
        } else {
            takeValue(KeyValue<T>::of(*from, GetCOREInterface()->GetTime()));
        }
    });
}

template class BaseControl<float>;
template class BaseControl<Matrix3>;

}  // namespace qvo::zmx::adaptor::max
