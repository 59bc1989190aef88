#pragma once

#include <utility>

#include "core/AdaptorInterface.h"
#include "core/CUndo.h"
#include "samples/mocap_core/Take.h"

namespace qvo::zmx::mocap {

/// Undo record of a change of what a take remembers. The host may keep it longer than the core lives; it is
/// only disposed of then.
class TakeChange : public CUndo {
  public:
    /// Makes `after` the take's record, undoably. Throws std::runtime_error, and changes nothing, when the
    /// host is not recording.
    static void make(core::AdaptorInterface& adaptor, Take& take, TakeRecord after);

    TakeChange(Take& take, TakeRecord after)
        : take_(take), before_(take.record()), after_(std::move(after)) {}

    void restore(bool isUndo) override;  // slot 0
    void redo() override;                // slot 1

  private:
    Take& take_;
    TakeRecord before_;
    TakeRecord after_;
};

}  // namespace qvo::zmx::mocap
