#pragma once

#include <memory>

#include "adaptor/max/controllers/ControlKeyRestore.h"

namespace qvo::zmx::adaptor::max {

/// A key was inserted between others. Undo takes it out and keeps it for redo.
template <typename Controller, typename Key>
class ControlKeyInsertRestore : public ControlKeyRestore<Controller, Key> {
  public:
    ControlKeyInsertRestore(const Controller& controller, int index, TimeValue t)
        : ControlKeyRestore<Controller, Key>(controller), index_(index), time_(t) {}

  protected:
    bool undoEdit(Controller& controller, bool /*isUndo*/) override {
        if (undone_) return false;
        const int index = this->locate(controller, index_, time_);
        if (index < 0) return false;
        undone_ = std::make_unique<Key>(this->keysOf(controller)[index]);
        this->erase(controller, index);
        return true;
    }

    bool redoEdit(Controller& controller) override {
        if (!undone_) return false;
        // Another record of the same hold may have put a key there: the host restores the records of a drag
        // at each of its steps and keeps them all. The last step counts.
        this->place(controller, *undone_);
        undone_.reset();
        return true;
    }

  private:
    int index_;
    TimeValue time_;
    std::unique_ptr<Key> undone_;  ///< the key, while it is undone
};

}  // namespace qvo::zmx::adaptor::max
