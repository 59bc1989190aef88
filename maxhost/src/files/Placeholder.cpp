#include "maxhost/src/files/Placeholder.h"

#include "maxhost/src/scene/ShownSuperClass.h"

namespace maxhost {

namespace {

bool isControllerSuperClass(SClass_ID superClass) {
    return superClass >= CTRL_INTEGER_CLASS_ID && superClass <= CTRL_SCALE_CLASS_ID;
}

}  // namespace

bool isSavedSuperClass(SClass_ID superClass) {
    return isControllerSuperClass(superClass) || isShownSuperClass(superClass) ||
           superClass == REF_TARGET_CLASS_ID || superClass == PARAMETER_BLOCK_CLASS_ID ||
           superClass == PARAMETER_BLOCK2_CLASS_ID;
}

ReferenceTarget* makePlaceholder(SClass_ID superClass, Class_ID classId, ByteSpan chunks,
                                 size_t referenceCount) {
    if (isControllerSuperClass(superClass))
        return new PlaceholderControl(superClass, classId, chunks, referenceCount);
    if (isShownSuperClass(superClass))
        return new PlaceholderObject(superClass, classId, chunks, referenceCount);
    return new PlaceholderTarget(superClass, classId, chunks, referenceCount);
}

Placeholder* Placeholder::of(ReferenceTarget& target) {
    return target.ClassID() == shownClassId() ? dynamic_cast<Placeholder*>(&target) : nullptr;
}

void PlaceholderControl::GetValue(TimeValue /*t*/, void* val, Interval& /*valid*/, GetSetMethod method) {
    if (method == CTRL_RELATIVE) return;
    switch (SuperClassID()) {
        case CTRL_MATRIX3_CLASS_ID:
            static_cast<Matrix3*>(val)->IdentityMatrix();
            break;
        case CTRL_POINT3_CLASS_ID:
        case CTRL_POSITION_CLASS_ID:
            *static_cast<Point3*>(val) = Point3(0, 0, 0);
            break;
        case CTRL_QUAT_CLASS_ID:
        case CTRL_ROTATION_CLASS_ID:
            static_cast<Quat*>(val)->Identity();
            break;
        case CTRL_SCALE_CLASS_ID:
            *static_cast<ScaleValue*>(val) = ScaleValue();
            break;
        case CTRL_INTEGER_CLASS_ID:
            *static_cast<int*>(val) = 0;
            break;
        default:
            *static_cast<float*>(val) = 0;
            break;
    }
}

}  // namespace maxhost
