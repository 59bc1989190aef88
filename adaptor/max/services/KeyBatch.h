#pragma once

namespace qvo::zmx::adaptor::max {

/// Writing keys in bulk: scene redraw off, animate mode on. Batches nest; only the outermost pair touches the
/// host.
class KeyBatch {
  public:
    /// True when this was the outermost begin.
    bool begin();

    /// True when this ended the outermost batch; an end without a begin does nothing.
    bool end();

    bool isOpen() const { return depth_ > 0; }

    /// Ends all open batches.
    void endAll();

  private:
    int depth_ = 0;
    bool wasAnimating_ = false;
};

}  // namespace qvo::zmx::adaptor::max
