#pragma once

#include "adaptor/max/controllers/ControlKeyInsertRestore.h"

namespace qvo::zmx::adaptor::max {

/// A key was added after all others: an insertion behind the last key, made before the key is in the table.
template <typename Controller, typename Key>
class ControlKeyAppendRestore final : public ControlKeyInsertRestore<Controller, Key> {
  public:
    ControlKeyAppendRestore(const Controller& controller, TimeValue t)
        : ControlKeyInsertRestore<Controller, Key>(controller, controller.keys().size(), t) {}
};

}  // namespace qvo::zmx::adaptor::max
