#include "adaptor/max/nodes/HostTime.h"

#include <cmath>

namespace qvo::zmx::adaptor::max {
namespace {

/// 4800 only for frame rates that divide it.
double ticksPerSecond() {
    return static_cast<double>(GetTicksPerFrame()) * GetFrameRate();
}

}  // namespace

TimeValue ticksFromSeconds(double seconds) {
    const double ticks = std::trunc((GetFrameRate() * seconds) * GetTicksPerFrame());
    if (std::isnan(ticks)) return 0;
    if (ticks <= static_cast<double>(TIME_NegInfinity)) return TIME_NegInfinity;
    if (ticks >= static_cast<double>(TIME_PosInfinity)) return TIME_PosInfinity;
    return static_cast<TimeValue>(ticks);
}

double secondsFromTicks(TimeValue ticks) {
    return ticks / ticksPerSecond();
}

}  // namespace qvo::zmx::adaptor::max
