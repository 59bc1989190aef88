#pragma once

namespace qvo::zmx::adaptor::max {

/// Keeps the host's frame rate at a multiple of the user's while the core works on a finer frame grid.
class FrameGrid {
  public:
    /// Makes the host's rate `multiplier` times the user's. Ignored, with a warning, when the multiplier is
    /// below 1 or leaves less than one tick for a frame.
    void setMultiplier(int multiplier);

    /// Nobody works on the finer grid any more: gives the host the user's rate back, unless the host has a
    /// rate of its own by now, as with a scene opened since.
    void letGo();

    /// Frames per second as the user sees them, at least 1.
    int userFrameRate() const;

  private:
    int multiplier_ = 1;
    int rateSet_ = 0;  ///< the host's rate as the grid last left it, frames per second
};

}  // namespace qvo::zmx::adaptor::max
