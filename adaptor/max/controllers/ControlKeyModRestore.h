#pragma once

#include <utility>

#include "adaptor/max/controllers/ControlKeyRestore.h"

namespace qvo::zmx::adaptor::max {

/// A key of the table, or the current key, was overwritten. Undo and redo exchange old and new content.
template <typename Controller, typename Key>
class ControlKeyModRestore final : public ControlKeyRestore<Controller, Key> {
  public:
    /// Stands for the controller's current key.
    static constexpr int kCurrentKey = -1;

    ControlKeyModRestore(const Controller& controller, int index, const Key& old)
        : ControlKeyRestore<Controller, Key>(controller),
          saved_(old),
          index_(index),
          unkeyed_(this->isUnkeyed(controller)) {}

  protected:
    bool undoEdit(Controller& controller, bool isUndo) override {
        Key* const target = targetIn(controller);
        if (!target) return false;
        if (isUndo) {
            exchange(controller, *target);
        } else {
            *target = saved_;
            if (index_ == kCurrentKey) this->unkeyedOf(controller) = unkeyed_;
        }
        dropStaleCache(controller);
        return true;
    }

    bool redoEdit(Controller& controller) override {
        Key* const target = targetIn(controller);
        if (!target) return false;
        exchange(controller, *target);
        dropStaleCache(controller);
        return true;
    }

  private:
    Key* targetIn(Controller& controller) const {
        if (index_ == kCurrentKey) return &this->currentOf(controller);
        const int index = this->locate(controller, index_, saved_.time);
        return index < 0 ? nullptr : &this->keysOf(controller)[index];
    }

    void exchange(Controller& controller, Key& target) {
        std::swap(saved_, target);
        if (index_ == kCurrentKey) std::swap(unkeyed_, this->unkeyedOf(controller));
    }

    /// A value that was set without a key comes back as it was. One that was evaluated is asked for again:
    /// the table may have changed since, unrecorded.
    void dropStaleCache(Controller& controller) const {
        if (index_ != kCurrentKey || !this->unkeyedOf(controller)) this->makeStale(controller);
    }

    Key saved_;
    int index_;
    bool unkeyed_;  ///< goes with `saved_` when that is a current key
};

}  // namespace qvo::zmx::adaptor::max
