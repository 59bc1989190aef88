#pragma once

#include "adaptor/max/ClassIds.h"
#include "adaptor/max/controllers/ScalarControl.h"
#include "adaptor/max/controllers/TransformControl.h"

namespace qvo::zmx::adaptor::max {

/// `animatable`, which may be null, as a controller of ours; null when it is something else. The ids are
/// asked first: an object of the host's may lack what a dynamic cast needs.
template <typename Controller>
Controller* ownControl(Animatable* animatable, SClass_ID superClassId, const Class_ID& classId) {
    const bool isOwn =
        animatable && animatable->SuperClassID() == superClassId && animatable->ClassID() == classId;
    return isOwn ? dynamic_cast<Controller*>(animatable) : nullptr;
}

inline TransformControl* ownTransformControl(Animatable* animatable) {
    return ownControl<TransformControl>(animatable, CTRL_MATRIX3_CLASS_ID, kTransformControlClassId);
}

inline ScalarControl* ownScalarControl(Animatable* animatable) {
    return ownControl<ScalarControl>(animatable, CTRL_FLOAT_CLASS_ID, kScalarControlClassId);
}

}  // namespace qvo::zmx::adaptor::max
