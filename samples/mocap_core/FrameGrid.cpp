#include "samples/mocap_core/FrameGrid.h"

#include <cmath>
#include <limits>
#include <sstream>
#include <stdexcept>
#include <string>

namespace qvo::zmx::mocap {

namespace {

/// Printed frame times have as few as five digits; 1001 / 1000 of a whole rate's time is another rate.
constexpr double kSnapTolerance = 5e-4;
constexpr double kStepTolerance = 1e-9;  // rounding only
constexpr double kLastTick = std::numeric_limits<std::int32_t>::max();

bool isWhole(double value) {
    return std::abs(value - std::round(value)) <= kStepTolerance * value && value >= 0.5;
}

std::string text(double value) {
    std::ostringstream stream;
    stream << value;
    return stream.str();
}

int wholeRate(double userRate) {
    if (!(userRate >= 1.0 && userRate <= FrameGrid::kTicksPerSecond))
        throw std::runtime_error("the host's frame rate " + text(userRate) + " is out of range");
    return static_cast<int>(std::lround(userRate));
}

}  // namespace

FrameGrid::FrameGrid(double userRate, double frameTime, std::size_t frames, std::int64_t earliest)
    : userRate_(wholeRate(userRate)), frameTime_(exactFrameTime(frameTime)), frames_(frames) {
    chooseMultiplier();
    firstFrame_ = (earliest + ticksPerFrame() - 1) / ticksPerFrame();
    verify();
}

double FrameGrid::exactFrameTime(double printed) {
    const double rate = std::round(1.0 / printed);
    return rate >= 1.0 && std::abs(rate * printed - 1.0) <= kSnapTolerance ? 1.0 / rate : printed;
}

void FrameGrid::chooseMultiplier() {
    const int ticksPerUserFrame = kTicksPerSecond / userRate_;  // above it a host frame has no tick left
    int coarseEven = 1;
    for (int candidate = 1; candidate <= ticksPerUserFrame; ++candidate) {
        if (ticksPerUserFrame % candidate != 0) continue;
        if (isWhole(userRate_ * candidate * frameTime_)) {
            multiplier_ = candidate;
            exact_ = true;
            return;
        }
        if (candidate <= userRate_) coarseEven = candidate;
    }
    multiplier_ = userRate_ * coarseEven * frameTime_ >= 1.0 ? coarseEven : ticksPerUserFrame;
    if (rate() * frameTime_ < 1.0)
        throw std::runtime_error("the clip's " + text(1.0 / frameTime_) +
                                 " frames per second are closer than the finest grid that a host at " +
                                 std::to_string(userRate_) + " frames per second allows (" +
                                 std::to_string(rate()) + ")");
}

std::int64_t FrameGrid::hostFrame(std::size_t frame) const {
    const double step = rate() * frameTime_;
    return firstFrame_ + std::llround(static_cast<double>(frame) * (exact_ ? std::round(step) : step));
}

double FrameGrid::secondsOf(std::size_t frame) const {
    const double wanted = static_cast<double>(hostFrame(frame));
    double seconds = wanted / rate();
    while (rate() * seconds < wanted)
        seconds = std::nextafter(seconds, std::numeric_limits<double>::max());
    return seconds;
}

std::int64_t FrameGrid::ticksOf(double seconds) const {
    return static_cast<std::int64_t>((rate() * seconds) * ticksPerFrame());
}

void FrameGrid::verify() const {
    if (frames_ == 0) return;
    const double last =
        (static_cast<double>(firstFrame_) + static_cast<double>(frames_ - 1) * (rate() * frameTime_)) *
        ticksPerFrame();
    if (!(last < kLastTick))  // false for NaN too
        throw std::runtime_error("the clip lasts longer than the host's time line of 2147483647 ticks");
    std::int64_t previous = -1;
    for (std::size_t frame = 0; frame < frames_; ++frame) {
        const std::int64_t ticks = ticksOf(secondsOf(frame));
        if (ticks != hostFrame(frame) * ticksPerFrame() || ticks <= previous)
            throw std::runtime_error("clip frame " + std::to_string(frame) +
                                     " does not get a tick of its own");
        previous = ticks;
    }
}

}  // namespace qvo::zmx::mocap
