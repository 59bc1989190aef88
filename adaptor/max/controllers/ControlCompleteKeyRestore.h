#pragma once

#include <utility>

#include "adaptor/max/controllers/ControlKeyRestore.h"
#include "adaptor/max/controllers/KeyTable.h"

namespace qvo::zmx::adaptor::max {

/// The whole table and the current key were changed. Undo and redo exchange old and new.
template <typename Controller, typename Key>
class ControlCompleteKeyRestore final : public ControlKeyRestore<Controller, Key> {
  public:
    explicit ControlCompleteKeyRestore(const Controller& controller)
        : ControlKeyRestore<Controller, Key>(controller),
          keys_(controller.keys()),
          current_(controller.currentKey()),
          unkeyed_(this->isUnkeyed(controller)) {}

  protected:
    bool undoEdit(Controller& controller, bool isUndo) override {
        if (isUndo) return redoEdit(controller);
        this->keysOf(controller) = keys_;
        this->currentOf(controller) = current_;
        this->unkeyedOf(controller) = unkeyed_;
        return true;
    }

    bool redoEdit(Controller& controller) override {
        std::swap(keys_, this->keysOf(controller));
        std::swap(current_, this->currentOf(controller));
        std::swap(unkeyed_, this->unkeyedOf(controller));
        return true;
    }

  private:
    KeyTable<decltype(Key::value)> keys_;
    Key current_;
    bool unkeyed_;
};

}  // namespace qvo::zmx::adaptor::max
