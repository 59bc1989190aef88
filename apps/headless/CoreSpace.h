#pragma once

#include <point3.h>

namespace headless {

/// A place in the core's space: metres, Y up.
struct CorePoint {
    double x = 0, y = 0, z = 0;
};

/// System units of the host, as they are set now, in a metre.
double unitsPerMetre();

/// `host`: world coordinates of the host, system units, Z up.
CorePoint corePoint(const Point3& host, double unitsPerMetre);

double distance(const CorePoint& a, const CorePoint& b);

}  // namespace headless
