#pragma once

#include <max.h>

namespace maxhost {

/// Whether a node can show objects of that super class.
inline bool isShownSuperClass(SClass_ID superClass) {
    switch (superClass) {
        case GEOMOBJECT_CLASS_ID:
        case CAMERA_CLASS_ID:
        case LIGHT_CLASS_ID:
        case SHAPE_CLASS_ID:
        case HELPER_CLASS_ID:
        case SYSTEM_CLASS_ID:
        case DERIVOB_CLASS_ID:
        case WSM_DERIVOB_CLASS_ID:
            return true;
        default:
            return false;
    }
}

}  // namespace maxhost
