#include "samples/mocap_core/SceneGrid.h"

#include <memory>
#include <stdexcept>

#include "samples/mocap_core/GridChange.h"

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

void SceneGrid::setMultiplier(int multiplier) {
    adaptor_.setFrameRateMultiplier(multiplier);
    multiplier_ = multiplier;
}

}  // namespace qvo::zmx::mocap
