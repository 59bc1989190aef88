#include "maxhost/src/scene/Timing.h"

#include <notify.h>

#include <algorithm>

namespace maxhost {

Timing& Timing::instance() {
    static Timing* const timing = new Timing;  // lives as long as the process, like the functions below
    return *timing;
}

void Timing::setTime(TimeValue t) {
    if (t == time_) return;
    time_ = t;
    const std::vector<TimeChangeCallback*> present = callbacks_;
    for (TimeChangeCallback* callback : present) {
        const bool stillThere = std::find(callbacks_.begin(), callbacks_.end(), callback) != callbacks_.end();
        if (stillThere) callback->TimeChanged(time_);
    }
}

void Timing::setGrid(int rate, int ticks) {
    if (rate == frameRate_ && ticks == ticksPerFrame_) return;
    frameRate_ = rate;
    ticksPerFrame_ = ticks;
    BroadcastNotification(NOTIFY_TIMEUNITS_CHANGE);
}

void Timing::setFrameRate(int rate) {
    if (rate >= 1) setGrid(rate, std::max(1, TIME_TICKSPERSEC / rate));
}

void Timing::setTicksPerFrame(int ticks) {
    if (ticks >= 1) setGrid(std::max(1, TIME_TICKSPERSEC / ticks), ticks);
}

void Timing::addCallback(TimeChangeCallback* callback) {
    if (callback != nullptr) callbacks_.push_back(callback);
}

void Timing::removeCallback(TimeChangeCallback* callback) {
    const auto found = std::find(callbacks_.begin(), callbacks_.end(), callback);
    if (found != callbacks_.end()) callbacks_.erase(found);
}

void Timing::setDefaults() {
    range_ = Interval(0, kDefaultRangeEnd);
    setFrameRate(kDefaultFrameRate);
    setTime(0);
}

void Timing::forgetCallbacks() {
    callbacks_.clear();
}

}  // namespace maxhost

using maxhost::Timing;

int GetFrameRate() {
    return Timing::instance().frameRate();
}

void SetFrameRate(int rate) {
    Timing::instance().setFrameRate(rate);
}

int GetTicksPerFrame() {
    return Timing::instance().ticksPerFrame();
}

void SetTicksPerFrame(int ticks) {
    Timing::instance().setTicksPerFrame(ticks);
}
