#include "maxhost/src/controllers/LinearControl.h"

#include <limits>
#include <utility>
#include <vector>

#include <hold.h>

#include "maxhost/src/references/RecordHold.h"

namespace maxhost {

namespace {

/// Stored in scene files; never change them.
constexpr USHORT kConstantChunk = 0x0100;
constexpr USHORT kKeysChunk = 0x0101;

IOResult writeChunk(ISave* isave, USHORT id, const void* bytes, size_t size) {
    if (size > std::numeric_limits<ULONG>::max()) return IO_ERROR;
    if (isave->BeginChunk(id) != IO_OK) return IO_ERROR;
    if (isave->Write(bytes, static_cast<ULONG>(size), nullptr) != IO_OK) return IO_ERROR;
    return isave->EndChunk();
}

}  // namespace

/// The keys and constant of a controller before a hold's first edit; after undo, those after its last.
template <class Traits>
class LinearControl<Traits>::KeysRestore : public RestoreObj {
  public:
    explicit KeysRestore(LinearControl& control)
        : control_(control), hold_(&control), keys_(control.keys_), constant_(control.constant_) {
        control_.SetAFlag(A_HELD);
    }

    void Restore(int isUndo) override {
        if (isUndo) {
            swap();
            return;
        }
        // The open hold may restore more than once, so the former keys stay here too.
        control_.keys_ = keys_;
        control_.constant_ = constant_;
        control_.changed();
    }
    void Redo() override { swap(); }
    void EndHold() override { control_.ClearAFlag(A_HELD); }
    int Size() override { return static_cast<int>(sizeof(*this)); }
    TSTR Description() override { return _T("Key edit"); }

  private:
    void swap() {
        std::swap(control_.keys_, keys_);
        std::swap(control_.constant_, constant_);
        control_.changed();
    }

    LinearControl& control_;
    RecordHold hold_;
    Keys keys_;
    Value constant_;
};

template <class Traits>
void LinearControl<Traits>::recordEdit() {
    if (theHold.Holding() && !TestAFlag(A_HELD)) theHold.Put(new KeysRestore(*this));
}

template <class Traits>
typename Traits::Value LinearControl<Traits>::valueAt(TimeValue t) const {
    if (keys_.empty()) return constant_;
    const int right = keys_.firstFrom(t);
    if (!keys_.has(right)) return keys_[keys_.size() - 1].value;
    const Key<Value>& b = keys_[right];
    if (right == 0 || b.time == t) return b.value;
    const Key<Value>& a = keys_[right - 1];
    const double span = static_cast<double>(b.time) - a.time;
    return Traits::between(a.value, b.value, static_cast<float>((static_cast<double>(t) - a.time) / span));
}

template <class Traits>
Interval LinearControl<Traits>::validityAt(TimeValue t) const {
    if (keys_.empty()) return FOREVER;
    const int right = keys_.firstFrom(t);
    if (!keys_.has(right)) return Interval(keys_[keys_.size() - 1].time, TIME_PosInfinity);
    if (right == 0) return Interval(TIME_NegInfinity, keys_[0].time);
    const Key<Value>& a = keys_[right - 1];
    const Key<Value>& b = keys_[right];
    return Traits::equal(a.value, b.value) ? Interval(a.time, b.time) : Interval(t, t);
}

template <class Traits>
void LinearControl<Traits>::GetValue(TimeValue t, void* val, Interval& valid, GetSetMethod method) {
    valid &= validityAt(t);
    Traits::write(valueAt(t), val, method);
}

template <class Traits>
void LinearControl<Traits>::SetValue(TimeValue t, void* val, int commit, GetSetMethod method) {
    const Value given = Traits::read(val, method);
    const Value former = valueAt(t);
    const Value value = method == CTRL_RELATIVE ? Traits::combine(former, given) : given;
    if (!Traits::isFinite(value)) return;
    const bool makeKey = Animating() && commit;
    // A value that is not committed makes no key, and in animate mode it must not move keys either.
    if (Animating() && !commit && !keys_.empty()) return;

    recordEdit();
    if (makeKey) {
        keys_.set(t, value);
    } else if (keys_.empty()) {
        constant_ = value;
    } else {
        for (Key<Value>& key : keys_)
            key.value = Traits::shifted(key.value, former, value);
    }
    changed();
}

template <class Traits>
void LinearControl<Traits>::replaceAll(const Keys& keys, const Value& constant) {
    recordEdit();
    keys_ = keys;
    constant_ = constant;
}

template <class Traits>
void LinearControl<Traits>::Copy(Control* from) {
    if (from == nullptr || from == this || from->SuperClassID() != SuperClassID()) return;
    if (from->ClassID() == ClassID()) {
        const auto* const twin = static_cast<const LinearControl*>(from);
        replaceAll(twin->keys_, twin->constant_);
    } else {
        Value value = Traits::neutral();
        Interval valid = FOREVER;
        from->GetValue(0, &value, valid, CTRL_ABSOLUTE);
        if (Traits::isFinite(value)) replaceAll(Keys(), value);
    }
    changed();
}

template <class Traits>
RefTargetHandle LinearControl<Traits>::Clone(RemapDir& remap) {
    auto* const clone = new LinearControl;
    clone->keys_ = keys_;
    clone->constant_ = constant_;
    BaseClone(this, clone, remap);
    return clone;
}

template <class Traits>
BOOL LinearControl<Traits>::GetNextKeyTime(TimeValue t, DWORD flags, TimeValue& nt) {
    int i = keys_.firstFrom(t);
    if ((flags & NEXTKEY_RIGHT) != 0) {
        if (keys_.has(i) && keys_[i].time == t) ++i;
    } else {
        --i;
    }
    if (!keys_.has(i)) return FALSE;
    nt = keys_[i].time;
    return TRUE;
}

template <class Traits>
int LinearControl<Traits>::GetKeyTimes(Tab<TimeValue>& times, Interval range, DWORD) {
    const bool all = range.Start() > range.End();
    int count = 0;
    for (int i = all ? 0 : keys_.firstFrom(range.Start()); i < keys_.size(); ++i, ++count) {
        if (!all && keys_[i].time > range.End()) break;
        times.Append(1, &keys_[i].time);
    }
    return count;
}

template <class Traits>
Interval LinearControl<Traits>::GetTimeRange(DWORD) {
    return keys_.empty() ? Interval() : Interval(keys_[0].time, keys_[keys_.size() - 1].time);
}

template <class Traits>
void LinearControl<Traits>::DeleteTime(Interval iv, DWORD flags) {
    if (keys_.empty()) return;
    recordEdit();
    keys_.deleteTime(iv, flags);
    changed();
}

template <class Traits>
void LinearControl<Traits>::DeleteKeys(DWORD flags) {
    if ((flags & TRACK_DOALL) == 0 || keys_.empty()) return;
    recordEdit();
    keys_.clear();
    changed();
}

template <class Traits>
void LinearControl<Traits>::DeleteKeyByIndex(int index) {
    if (!keys_.has(index)) return;
    recordEdit();
    keys_.erase(index);
    changed();
}

template <class Traits>
IOResult LinearControl<Traits>::Save(ISave* isave) {
    const IOResult saved = writeChunk(isave, kConstantChunk, &constant_, sizeof(constant_));
    if (saved != IO_OK || keys_.empty()) return saved;
    return writeChunk(isave, kKeysChunk, keys_.data(),
                      sizeof(Key<Value>) * static_cast<size_t>(keys_.size()));
}

template <class Traits>
IOResult LinearControl<Traits>::Load(ILoad* iload) {
    IOResult opened = iload->OpenChunk();
    for (; opened == IO_OK; opened = iload->OpenChunk()) {
        IOResult read = IO_OK;
        if (iload->CurChunkID() == kConstantChunk) {
            Value value = Traits::neutral();
            read = iload->Read(&value, sizeof(value), nullptr);
            if (read == IO_OK && Traits::isFinite(value)) constant_ = value;
        } else if (iload->CurChunkID() == kKeysChunk) {
            read = loadKeys(iload);
        }
        const IOResult closed = iload->CloseChunk();
        if (read != IO_OK) return read;
        if (closed != IO_OK) return closed;
    }
    return opened == IO_END ? IO_OK : opened;
}

template <class Traits>
IOResult LinearControl<Traits>::loadKeys(ILoad* iload) {
    // Block by block: the stated length is not trusted for an allocation.
    constexpr size_t kBlock = 1024;
    std::vector<Key<Value>> block(kBlock, Key<Value>{0, Traits::neutral()});
    for (size_t left = iload->CurChunkLength() / sizeof(Key<Value>); left > 0;) {
        const size_t count = left < kBlock ? left : kBlock;
        if (iload->Read(block.data(), static_cast<ULONG>(count * sizeof(Key<Value>)), nullptr) != IO_OK)
            return IO_ERROR;
        for (size_t i = 0; i < count; ++i) {
            const bool rises = keys_.empty() || block[i].time > keys_[keys_.size() - 1].time;
            if (rises && Traits::isFinite(block[i].value)) keys_.set(block[i].time, block[i].value);
        }
        left -= count;
    }
    return IO_OK;
}

template class LinearControl<FloatTraits>;
template class LinearControl<PositionTraits>;
template class LinearControl<RotationTraits>;
template class LinearControl<ScaleTraits>;

}  // namespace maxhost
