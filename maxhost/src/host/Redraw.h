#pragma once

namespace maxhost {

/// When the views would be drawn. This host draws only on demand, so it counts.
class Redraw {
  public:
    /// A redraw that does not happen while redraw is disabled.
    void request() {
        if (!isDisabled()) ++count_;
    }
    /// Counted; returns the depth.
    int disable() { return ++disabled_; }
    int enable() { return disabled_ > 0 ? --disabled_ : 0; }
    bool isDisabled() const { return disabled_ > 0; }
    /// Redraws since the host was started.
    int count() const { return count_; }

  private:
    int disabled_ = 0;
    int count_ = 0;
};

}  // namespace maxhost
