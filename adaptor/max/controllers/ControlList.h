#pragma once

namespace qvo::zmx::adaptor::max {

/// Links a controller into the process-wide list of all controllers of its class, in order of construction,
/// and takes it out when it dies, both at constant cost. The list needs no destruction of its own, so
/// controllers may outlive every other static object.
template <typename Controller>
class ControlListEntry {
  public:
    explicit ControlListEntry(Controller& controller) : controller_(controller), previous_(last_) {
        if (previous_) previous_->next_ = this;
        last_ = this;
    }
    ~ControlListEntry() {
        (next_ ? next_->previous_ : last_) = previous_;
        if (previous_) previous_->next_ = next_;
    }
    ControlListEntry(const ControlListEntry&) = delete;
    ControlListEntry& operator=(const ControlListEntry&) = delete;

    /// The newest entry, or null.
    static const ControlListEntry* last() { return last_; }
    const ControlListEntry* previous() const { return previous_; }
    Controller& controller() const { return controller_; }

  private:
    inline static ControlListEntry* last_ = nullptr;

    Controller& controller_;
    ControlListEntry* previous_;
    ControlListEntry* next_ = nullptr;
};

}  // namespace qvo::zmx::adaptor::max
