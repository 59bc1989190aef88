#pragma once

#include "core/AdaptorInterface.h"
#include "samples/mocap_core/state/TakeRecord.h"

namespace qvo::zmx::mocap {

/// The frame grid and animation range of the open scene, as far as the core sets them. The adaptor tells no
/// one its present multiplier, so it is remembered here; only the core ever changes it.
class SceneGrid {
  public:
    struct State {
        int multiplier;
        core::AdaptorInterface::TimeRange range;  ///< seconds
    };

    explicit SceneGrid(core::AdaptorInterface& adaptor) : adaptor_(adaptor) {}

    State current() const { return {multiplier_, adaptor_.getAnimationRange()}; }

    /// Sets multiplier and range as one undoable change; `range` counts on the new grid. Throws
    /// std::runtime_error, and changes nothing, when the host is not recording.
    void change(const State& after);

    /// Sets both without a record. The multiplier goes first: the range's seconds become ticks on its grid.
    void apply(const State& state);

    void setMultiplier(int multiplier);
    int multiplier() const { return multiplier_; }

    /// The scene is about to close: goes back to the user's own grid.
    void suspend();
    /// The scene has not closed after all: takes the grid up again.
    void resume();

    /// Takes up the grid that a take in the scene was made on, if the host is at the same frame rate as then.
    void restore(const TakeRecord& take);

  private:
    core::AdaptorInterface& adaptor_;
    int multiplier_ = 1;
    int suspended_ = 1;  ///< what resume() takes up: a change that undo makes meanwhile counts
};

}  // namespace qvo::zmx::mocap
