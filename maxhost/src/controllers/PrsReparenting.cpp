#include <decomp.h>

#include "maxhost/src/controllers/PrsControl.h"
#include "maxhost/src/geometry/Decompose.h"

namespace maxhost {

namespace {

Quat rotationOf(const Matrix3& local) {
    return Quat(local);
}

ScaleValue scaleOf(const Matrix3& local) {
    AffineParts parts;
    decomp_affine(local, &parts);
    return ScaleValue(parts.k * parts.f);
}

}  // namespace

bool PrsControl::hasBuiltinParts() const {
    const Class_ID builtin[] = {Class_ID(LININTERP_POSITION_CLASS_ID, 0),
                                Class_ID(LININTERP_ROTATION_CLASS_ID, 0),
                                Class_ID(LININTERP_SCALE_CLASS_ID, 0)};
    for (int i = 0; i < kPartCount; ++i)
        if (parts_[i] == nullptr || parts_[i]->ClassID() != builtin[i]) return false;
    return true;
}

BOOL PrsControl::ChangeParents(TimeValue t, const Matrix3& oldP, const Matrix3& newP, const Matrix3&) {
    if (!hasBuiltinParts()) return FALSE;
    if (!isInvertible(newP)) return TRUE;
    const Matrix3 change = oldP * Inverse(newP);
    const auto moved = [&](TimeValue at) {
        Interval valid = FOREVER;
        return localAt(at, valid) * change;
    };

    // All new values are taken before the first part changes, since each depends on all three.
    const auto rebuilt = [&](const auto& control, const auto& valueOf) {
        auto keys = control.keys();
        for (auto& key : keys)
            key.value = valueOf(moved(key.time));
        return keys;
    };
    auto& position = static_cast<LinearControl<PositionTraits>&>(*parts_[kPosition]);
    auto& rotation = static_cast<LinearControl<RotationTraits>&>(*parts_[kRotation]);
    auto& scale = static_cast<LinearControl<ScaleTraits>&>(*parts_[kScale]);
    const auto positionKeys = rebuilt(position, [](const Matrix3& local) { return local.GetTrans(); });
    const auto rotationKeys = rebuilt(rotation, rotationOf);
    const auto scaleKeys = rebuilt(scale, scaleOf);
    const Matrix3 now = moved(t);

    position.replaceAll(positionKeys, now.GetTrans());
    rotation.replaceAll(rotationKeys, rotationOf(now));
    scale.replaceAll(scaleKeys, scaleOf(now));
    NotifyDependents(FOREVER, PART_ALL, REFMSG_CHANGE);
    return TRUE;
}

}  // namespace maxhost
