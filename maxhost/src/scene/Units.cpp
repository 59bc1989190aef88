#include <max.h>
#include <notify.h>
#include <units.h>

#include <cmath>

#include "maxhost/src/scene/Units.h"

namespace maxhost {

namespace {

/// Metres in one unit, by unit type.
constexpr double kMetres[] = {0.0254, 0.3048, 1609.344, 0.001, 0.01, 1.0, 1000.0};

bool isUnitType(int type) {
    return type >= UNITS_INCHES && type <= UNITS_KILOMETERS;
}

}  // namespace

Units& Units::instance() {
    static Units units;
    return units;
}

bool Units::isValid(int type, float scale) {
    return isUnitType(type) && std::isfinite(scale) && scale > 0;
}

bool Units::set(int type, float scale) {
    if (!isValid(type, scale)) return false;
    if (type == type_ && scale == scale_) return true;
    type_ = type;
    scale_ = scale;
    BroadcastNotification(NOTIFY_UNITS_CHANGE);
    return true;
}

double Units::systemUnitIn(int type) const {
    if (!isUnitType(type)) return 1.0;
    return static_cast<double>(scale_) * (kMetres[type_] / kMetres[type]);
}

}  // namespace maxhost

using maxhost::Units;

double GetMasterScale(int type) {
    return Units::instance().systemUnitIn(type);
}

void GetMasterUnitInfo(int* type, float* scale) {
    if (type != nullptr) *type = Units::instance().type();
    if (scale != nullptr) *scale = Units::instance().scale();
}

BOOL SetMasterUnitInfo(int type, float scale) {
    return Units::instance().set(type, scale) ? TRUE : FALSE;
}
