#pragma once

#include <stdexcept>
#include <string>

#include "core/AdaptorInterface.h"

namespace qvo::zmx::mocap {

/// A named undo group of the host: everything done during its life is one step for the user. Without
/// accept() its end cancels the group, which takes all of it back.
class UndoGroup {
  public:
    UndoGroup(core::AdaptorInterface& adaptor, const std::string& name) : adaptor_(adaptor) {
        adaptor_.beginUndoGroup(name);
    }

    UndoGroup(const UndoGroup&) = delete;
    UndoGroup& operator=(const UndoGroup&) = delete;

    ~UndoGroup() {
        if (open_) adaptor_.cancelUndoGroup();
    }

    /// Throws std::runtime_error when the host no longer knows the group.
    void accept() {
        open_ = false;
        if (adaptor_.endUndoGroup() != 0) throw std::runtime_error("the undo group was closed by others");
    }

  private:
    core::AdaptorInterface& adaptor_;
    bool open_ = true;
};

}  // namespace qvo::zmx::mocap
