// Properties: whatever bytes a controller is given to load, its keys rise in time and are no more than the
// bytes can hold, every value it hands out is finite, it can be edited and undone, and what it saves it loads
// again byte for byte.

#include <cmath>
#include <cstddef>
#include <cstdint>

#include "adaptor/max/controllers/ScalarControl.h"
#include "adaptor/max/controllers/TransformControl.h"
#include "fuzz/FuzzHost.h"
#include "fuzz/FuzzInput.h"
#include "maxhost/src/files/ChunkReader.h"
#include "maxhost/src/files/ChunkWriter.h"

using namespace qvo::zmx::adaptor::max;

namespace {

/// Holds a controller as a node would, so that it lives while undo records come and go.
template <typename Controller>
class Holder {
  public:
    Holder() : control_(new Controller) { control_->SetAFlag(A_LOCK_TARGET); }
    ~Holder() {
        control_->ClearAFlag(A_LOCK_TARGET);
        control_->MaybeAutoDelete();
    }
    Holder(const Holder&) = delete;
    Holder& operator=(const Holder&) = delete;

    Controller* operator->() const { return control_; }

  private:
    Controller* control_;
};

bool isFinite(float value) {
    return std::isfinite(value);
}

bool isFinite(const Matrix3& value) {
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 3; ++column)
            if (!std::isfinite(value.GetRow(row)[column])) return false;
    return true;
}

template <typename Controller>
maxhost::Bytes saved(const Holder<Controller>& control) {
    maxhost::ChunkWriter out;
    require(control->Save(&out) == IO_OK && !out.failed() && out.depth() == 0, "everything can be saved");
    return out.take();
}

template <typename Controller>
void load(const Holder<Controller>& control, maxhost::ByteSpan bytes) {
    maxhost::ChunkReader in(bytes, nullptr);
    require(control->Load(&in) == IO_OK, "loading always goes well");
}

template <typename Controller, typename Value>
void evaluate(const Holder<Controller>& control, TimeValue t, Value value) {
    Interval valid = FOREVER;
    control->GetValue(t, &value, valid, CTRL_ABSOLUTE);
    require(isFinite(value), "values are finite");
}

template <typename Controller, typename Value>
void check(const std::uint8_t* data, std::size_t size, const Value& neutral) {
    Holder<Controller> control;
    load(control, {data, size});
    const auto& keys = control->keys();
    require(static_cast<std::size_t>(keys.size()) * sizeof(keys[0]) <= size, "no key comes from nowhere");
    for (int i = 1; i < keys.size(); ++i)
        require(keys[i - 1].time < keys[i].time, "times rise");

    const maxhost::Bytes first = saved(control);
    Holder<Controller> copy;
    load(copy, {first.data(), first.size()});
    require(saved(copy) == first, "what is saved is loaded");

    FuzzInput input(data, size);
    for (int i = 0; i < 8; ++i) {
        const TimeValue t = (input.byte() - 128) * 160;
        evaluate(control, t, neutral);
        evaluate(control, keys.empty() ? t : keys[input.byte() % keys.size()].time, neutral);
    }
    evaluate(control, TIME_NegInfinity, neutral);
    evaluate(control, TIME_PosInfinity, neutral);

    const maxhost::Bytes before = saved(control);
    theHold.Begin();
    control->DeleteTime(Interval((input.byte() - 128) * 160, input.byte() * 160),
                        static_cast<DWORD>(input.byte()));
    control->DeleteKeyByIndex(input.byte() - 3);
    control->DeleteKeys(TRACK_DOSEL);
    theHold.Cancel();
    const maxhost::Bytes after = saved(control);
    // The current key behind the table may have been evaluated anew.
    const std::size_t table = before.size() - sizeof(keys[0]);
    require(after.size() == before.size() && std::equal(after.begin(), after.begin() + table, before.begin()),
            "a cancelled edit leaves the table as it was");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzHost fuzzed;
    check<ScalarControl>(data, size, 0.0f);
    check<TransformControl>(data, size, Matrix3(1));
    return 0;
}
