#pragma once

#include "coreexp.h"
#include "maxtypes.h"

constexpr int UNITS_INCHES = 0;
constexpr int UNITS_FEET = 1;
constexpr int UNITS_MILES = 2;
constexpr int UNITS_MILLIMETERS = 3;
constexpr int UNITS_CENTIMETERS = 4;
constexpr int UNITS_METERS = 5;
constexpr int UNITS_KILOMETERS = 6;

/// How many units of `type` one system unit is. At host start the system unit is one inch. 1.0 for an unknown
/// type.
CoreExport double GetMasterScale(int type);
/// Either pointer may be null.
CoreExport void GetMasterUnitInfo(int* type, float* scale);
/// FALSE, and nothing changed, for an unknown type or a scale that is not positive.
CoreExport BOOL SetMasterUnitInfo(int type, float scale);
