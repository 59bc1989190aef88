#pragma once

namespace qvo::zmx::adaptor::max {

/// Writing keys in bulk: scene redraw off, animate mode on. Batches nest; only the outermost pair switches
/// the host.
class KeyBatch {
  public:
    void begin();

    /// An end without a begin does nothing.
    void end();

    /// Ends all open batches.
    void endAll();

  private:
    int depth_ = 0;
    bool wasAnimating_ = false;
};

}  // namespace qvo::zmx::adaptor::max
