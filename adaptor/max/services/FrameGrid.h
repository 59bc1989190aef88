#pragma once

namespace qvo::zmx::adaptor::max {

/// Keeps the host's frame rate at a multiple of the user's while the core works on a finer frame grid.
class FrameGrid {
  public:
    /// Makes the host's rate `multiplier` times the user's. Ignored, with a warning, when the multiplier is
    /// below 1 or above the host's rate, or leaves less than one tick for a frame.
    void setMultiplier(int multiplier);

    /// Frames per second as the user sees them, at least 1.
    int userFrameRate() const;

  private:
    int multiplier_ = 1;
};

}  // namespace qvo::zmx::adaptor::max
