#pragma once

#include "samples/mocap_core/options/DescribedOption.h"

namespace qvo::zmx::mocap {

/// An option that does something at once.
class ButtonOption : public DescribedOption<core::OptionElement, core::OptionType::button> {
  public:
    using DescribedOption::DescribedOption;

    /// The user's hand: tells those that act on it.
    void press() { broadcastCode(core::kOptionPressed); }
};

}  // namespace qvo::zmx::mocap
