#include "adaptor/max/controllers/ScalarControl.h"

#include "adaptor/max/ClassIds.h"
#include "adaptor/max/controllers/Interpolation.h"

namespace qvo::zmx::adaptor::max {

ScalarControl::ScalarControl()
    : BaseControl(CTRL_FLOAT_CLASS_ID, kScalarControlClassId, "Zorva Scalar control"), listEntry_(*this) {}

void ScalarControl::GetValue(TimeValue t, void* val, Interval& valid, GetSetMethod method) {
    valid.SetInstant(t);
    if (!isCached(t)) cache(keyAtTime(t));
    float& value = *static_cast<float*>(val);
    value = method == CTRL_RELATIVE ? value + current_.value : current_.value;
}

void ScalarControl::SetValue(TimeValue t, void* val, int /*commit*/, GetSetMethod method) {
    float value = *static_cast<const float*>(val);
    if (method == CTRL_RELATIVE) {
        if (isStale()) cache(keyAtTime(t));
        value += current_.value;
    }
    setValueAt(t, value);
}

ScalarControl::Key ScalarControl::keyAtTime(TimeValue t) {
    if (keys_.empty()) return {0, t, current_.value};
    const auto [left, right] = keys_.around(t);
    const float value = left == right ? keys_[left].value : interpolated(keys_[left], keys_[right], t);
    return {0, t, usable(value, t)};
}

}  // namespace qvo::zmx::adaptor::max
