#include "samples/mocap_core/SceneGrid.h"

#include <memory>
#include <stdexcept>

#include "samples/mocap_core/FrameGrid.h"
#include "samples/mocap_core/GridChange.h"
#include "util/Log.h"

namespace qvo::zmx::mocap {

namespace {

/// The adaptor truncates seconds to ticks, and seconds that it computed from a tick can fall short of that
/// tick by a rounding error. The margin makes up for that and cannot reach the next tick.
double onItsTick(double seconds) {
    constexpr double kMargin = 1e-12;  // of 2^31 ticks: two thousandths of a tick
    return seconds * (1.0 + kMargin);
}

}  // namespace

void SceneGrid::change(const State& after) {
    auto record = std::make_unique<GridChange>(*this, current(), after);
    if (adaptor_.addUndoRecord(record.release()) != 0)  // the adaptor owns it from here on, also when refused
        throw std::runtime_error("the host does not record undo");
    apply(after);
}

void SceneGrid::apply(const State& state) {
    setMultiplier(state.multiplier);
    adaptor_.setAnimationRange({onItsTick(state.range.first), onItsTick(state.range.second)});
}

void SceneGrid::suspend() {
    const int multiplier = multiplier_;
    setMultiplier(1);
    suspended_ = multiplier;
}

void SceneGrid::resume() {
    setMultiplier(suspended_);
}

void SceneGrid::restore(const TakeRecord& take) {
    const double userRate = adaptor_.getFrameRate();
    // A host that keeps its frame rate in the scene is on the fine grid already.
    if (userRate != take.userRate) {
        util::logLine(util::Log::kNotice, "The host is at ", userRate, " frames per second, \"", take.name,
                      "\" was made at ", take.userRate, ": the frame grid is left as it is");
        return;
    }
    // The adaptor's own limit: what it refused would be remembered here all the same.
    if (take.multiplier * userRate > FrameGrid::kTicksPerSecond)
        util::logLine(util::Log::kWarning, "The frame grid of \"", take.name, "\" is out of range");
    else
        setMultiplier(take.multiplier);
}

void SceneGrid::setMultiplier(int multiplier) {
    adaptor_.setFrameRateMultiplier(multiplier);
    multiplier_ = suspended_ = multiplier;
}

}  // namespace qvo::zmx::mocap
