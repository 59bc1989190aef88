#pragma once

#include "adaptor/max/Host.h"

namespace qvo::zmx::adaptor::max {

/// The manager's ear for the host's time slider. A base of the manager, which cannot derive from a class
/// nested in itself; the manager has an alias of the same name.
class CTimeChangeCallback : public TimeChangeCallback {
  public:
    /// Tells an attached core the new time, in seconds.
    void TimeChanged(TimeValue ticks) override;
};

}  // namespace qvo::zmx::adaptor::max
