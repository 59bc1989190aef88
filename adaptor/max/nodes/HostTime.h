#pragma once

#include "adaptor/max/Host.h"

namespace qvo::zmx::adaptor::max {

/// Seconds to host ticks: (frame rate x seconds) x ticks per frame in doubles, truncated toward zero. The
/// order of the factors matters: multiplying by the ticks per second would lose frame 5 at 30 frames per
/// second. NaN gives 0; what lies outside the ticks' 32 bits gives the nearest end.
TimeValue ticksFromSeconds(double seconds);

/// Host ticks to seconds.
double secondsFromTicks(TimeValue ticks);

}  // namespace qvo::zmx::adaptor::max
