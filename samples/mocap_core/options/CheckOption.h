#pragma once

#include <utility>

#include "samples/mocap_core/options/DescribedOption.h"

namespace qvo::zmx::mocap {

/// An option that is on or off.
class CheckOption : public DescribedOption<core::OptionCheck, core::OptionType::check> {
  public:
    CheckOption(OptionDescription description, bool value)
        : DescribedOption(std::move(description)), value_(value) {}

    bool getValue() override { return value_; }
    /// Shows a value that was decided elsewhere; nobody is told.
    void setValue(bool value) override { value_ = value; }

    /// The user's hand: takes the value and tells those that act on it. Nothing happens when it is the same.
    void choose(bool value) {
        if (value == value_) return;
        setValue(value);
        broadcastCode(core::kOptionChanged);
    }

  private:
    bool value_;
};

}  // namespace qvo::zmx::mocap
