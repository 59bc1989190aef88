#pragma once

#include <utility>

#include "samples/mocap_core/options/ListOption.h"

namespace qvo::zmx::mocap {

/// The whole of a plug-in's options. Owns its elements.
class GroupOption : public DescribedOption<core::OptionGroup, core::OptionType::group> {
  public:
    GroupOption(OptionDescription description, OptionElements elements)
        : DescribedOption(std::move(description)), elements_(std::move(elements)) {}

    core::OptionElement* findElement(unsigned int id) override { return findOption(elements_, id); }

  private:
    OptionElements elements_;
};

}  // namespace qvo::zmx::mocap
