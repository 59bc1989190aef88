#include "apps/headless/CoreSpace.h"

#include <units.h>

#include <cmath>

namespace headless {

double unitsPerMetre() {
    int type = UNITS_METERS;
    float scale = 1;
    GetMasterUnitInfo(&type, &scale);
    return GetMasterScale(type) / (GetMasterScale(UNITS_METERS) * static_cast<double>(scale));
}

CorePoint corePoint(const Point3& host, double unitsPerMetre) {
    return {host.x / unitsPerMetre, host.z / unitsPerMetre, -static_cast<double>(host.y) / unitsPerMetre};
}

double distance(const CorePoint& a, const CorePoint& b) {
    return std::hypot(a.x - b.x, a.y - b.y, a.z - b.z);
}

}  // namespace headless
