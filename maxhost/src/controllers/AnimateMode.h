#pragma once

#include <vector>

#include <coreexp.h>

namespace maxhost {

/// Whether sets make keys, and the modes that suspensions have saved.
class CoreExport AnimateMode {
  public:
    static AnimateMode& instance();

    bool isOn() const { return on_; }
    void set(bool on) { on_ = on; }
    void suspend();
    /// Without a suspension: a fault, and nothing changes.
    void resume();
    /// Off, nothing suspended, as at host start.
    void reset();

  private:
    bool on_ = false;
    std::vector<bool> saved_;
};

}  // namespace maxhost
