#pragma once

#include <ioapi.h>

#include <vector>

#include "maxhost/src/objects/SplineCurve.h"

namespace maxhost {

/// The curves of a shape as chunks of a scene file: one entry for each curve, then the knots of all curves.
IOResult saveCurves(ISave& save, const std::vector<SplineCurve>& curves);

/// Reads what saveCurves wrote. IO_ERROR, and `curves` as they were, for another version, for a curve without
/// knots, for knots that are too many, too few or not finite. Unknown chunks are skipped.
IOResult loadCurves(ILoad& load, std::vector<SplineCurve>& curves);

}  // namespace maxhost
