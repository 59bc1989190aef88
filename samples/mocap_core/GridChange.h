#pragma once

#include "core/CUndo.h"
#include "samples/mocap_core/SceneGrid.h"

namespace qvo::zmx::mocap {

/// Undo record of a change of the frame grid and the animation range. The host may keep it longer than the
/// core lives; it is only disposed of then.
class GridChange : public CUndo {
  public:
    GridChange(SceneGrid& grid, const SceneGrid::State& before, const SceneGrid::State& after)
        : grid_(grid), before_(before), after_(after) {}

    void restore(bool isUndo) override;  // slot 0
    void redo() override;                // slot 1

  private:
    SceneGrid& grid_;
    SceneGrid::State before_;
    SceneGrid::State after_;
};

}  // namespace qvo::zmx::mocap
