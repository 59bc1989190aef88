#pragma once

#include <string>

#include "adaptor/max/Host.h"

namespace qvo::zmx::adaptor::max {

/// Holds the host's undo recorder for one operation: begins a hold only if nobody holds, and at the end
/// accepts, under a fixed name, only what it began itself.
class HoldScope {
  public:
    /// `name` becomes the name of the host's undo entry.
    explicit HoldScope(const char* name);
    ~HoldScope();

    HoldScope(const HoldScope&) = delete;
    HoldScope& operator=(const HoldScope&) = delete;

    /// Undoes what was recorded since, if this scope began the hold; the scope then has nothing left to end.
    void cancel();

  private:
    std::string name_;  // copied before the hold begins: the destructor must not allocate
    bool ownsHold_;
};

}  // namespace qvo::zmx::adaptor::max
