#pragma once

#include "adaptor/max/Host.h"

namespace qvo::zmx::adaptor::max {

/// Takes the host's animate mode over for a scope: off at first, the user's state back at the end.
class AnimateScope {
  public:
    AnimateScope() { SuspendAnimate(); }
    ~AnimateScope() {
        AnimateOff();
        ResumeAnimate();
    }
    AnimateScope(const AnimateScope&) = delete;
    AnimateScope& operator=(const AnimateScope&) = delete;

    /// From now on every value that is set makes a key.
    void makeKeys() { AnimateOn(); }
};

}  // namespace qvo::zmx::adaptor::max
