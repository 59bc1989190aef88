#pragma once

#include "core/AdaptorInterface.h"

namespace qvo::zmx::mocap {

/// During its life every transform that is set becomes a key, and the host's viewports stay still.
class KeyBatch {
  public:
    explicit KeyBatch(core::AdaptorInterface& adaptor) : adaptor_(adaptor) { adaptor_.beginKeyBatch(); }

    KeyBatch(const KeyBatch&) = delete;
    KeyBatch& operator=(const KeyBatch&) = delete;

    ~KeyBatch() { adaptor_.endKeyBatch(); }

  private:
    core::AdaptorInterface& adaptor_;
};

}  // namespace qvo::zmx::mocap
