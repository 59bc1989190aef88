#include "adaptor/max/services/FrameGrid.h"

#include <algorithm>

#include "adaptor/max/Host.h"
#include "util/Log.h"

namespace qvo::zmx::adaptor::max {

void FrameGrid::setMultiplier(int multiplier) {
    const int hostRate = GetFrameRate();
    const int userRate = userFrameRate();
    if (multiplier < 1 || multiplier > TIME_TICKSPERSEC / userRate) {
        util::logLine(util::Log::kWarning, "Ignored frame rate multiplier ", multiplier, " at host rate ",
                      hostRate);
        return;
    }
    multiplier_ = multiplier;
    // Setting the rate it has would still change the ticks of a frame where they are no whole division.
    if (userRate * multiplier != hostRate) SetFrameRate(userRate * multiplier);
    rateSet_ = GetFrameRate();
}

void FrameGrid::letGo() {
    if (GetFrameRate() == rateSet_) setMultiplier(1);
    multiplier_ = 1;
}

int FrameGrid::userFrameRate() const {
    return std::max(1, GetFrameRate() / multiplier_);
}

}  // namespace qvo::zmx::adaptor::max
