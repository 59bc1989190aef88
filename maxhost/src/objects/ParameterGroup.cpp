#include "maxhost/src/objects/ParameterGroup.h"

#include <cmath>

#include <hold.h>

namespace maxhost {

BOOL ParameterGroup::AssignController(Animatable* control, int subAnim) {
    if (!has(subAnim) || control == nullptr || control->SuperClassID() != CTRL_FLOAT_CLASS_ID) return FALSE;
    if (owner_.ReplaceReference(subAnim, static_cast<Control*>(control)) != REF_SUCCEED) return FALSE;
    owner_.NotifyDependents(FOREVER, PART_ALL, REFMSG_CHANGE);
    return TRUE;
}

Interval ParameterGroup::GetTimeRange(DWORD flags) {
    Interval range;
    for (Control* const each : controls_) {
        const Interval of = each == nullptr ? Interval() : each->GetTimeRange(flags);
        if (of.Empty()) continue;
        range += of.Start();
        range += of.End();
    }
    return range;
}

void ParameterGroup::setControl(int i, RefTargetHandle target) {
    if (!has(i)) return;
    const bool fits = target != nullptr && target->SuperClassID() == CTRL_FLOAT_CLASS_ID;
    controls_[static_cast<size_t>(i)] = fits ? static_cast<Control*>(target) : nullptr;
}

void ParameterGroup::adopt(int i, RefTargetHandle control) {
    // Building an object is no edit: nothing of it may be undone on its own.
    const HoldSuspend suspend;
    owner_.ReplaceReference(i, control);
}

void ParameterGroup::makeControls() {
    for (int i = 0; i < count_; ++i) {
        Control* const control = NewDefaultFloatController();
        float initial = definitions_[i].initial;
        {
            const HoldSuspend suspend;
            control->SetValue(0, &initial, 0, CTRL_ABSOLUTE);
        }
        adopt(i, control);
    }
}

void ParameterGroup::cloneControls(const ParameterGroup& from, RemapDir& remap) {
    for (int i = 0; i < count_; ++i)
        adopt(i, remap.CloneRef(from.control(i)));
}

float ParameterGroup::value(int i, TimeValue t, Interval& valid) const {
    if (!has(i)) return 0;
    float result = definitions_[i].initial;
    if (Control* const from = control(i)) from->GetValue(t, &result, valid, CTRL_ABSOLUTE);
    return std::isfinite(result) ? result : definitions_[i].initial;
}

void ParameterGroup::setValue(int i, TimeValue t, float value) {
    if (Control* const to = control(i)) to->SetValue(t, &value, 1, CTRL_ABSOLUTE);
}

}  // namespace maxhost
