#pragma once

#include "adaptor/max/controllers/ControlKeyRestore.h"

namespace qvo::zmx::adaptor::max {

/// A key was deleted. Undo puts it back, redo deletes it again.
template <typename Controller, typename Key>
class ControlKeyDeleteRestore final : public ControlKeyRestore<Controller, Key> {
  public:
    ControlKeyDeleteRestore(const Controller& controller, int index, const Key& deleted)
        : ControlKeyRestore<Controller, Key>(controller), deleted_(deleted), index_(index) {}

  protected:
    bool undoEdit(Controller& controller, bool /*isUndo*/) override {
        if (undone_ || !this->insert(controller, deleted_)) return false;
        undone_ = true;
        return true;
    }

    bool redoEdit(Controller& controller) override {
        if (!undone_) return false;
        const int index = this->locate(controller, index_, deleted_.time);
        if (index < 0) return false;
        this->erase(controller, index);
        undone_ = false;
        return true;
    }

  private:
    Key deleted_;
    int index_;
    bool undone_ = false;
};

}  // namespace qvo::zmx::adaptor::max
