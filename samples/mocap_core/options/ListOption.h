#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "samples/mocap_core/options/DescribedOption.h"

namespace qvo::zmx::mocap {

using OptionElements = std::vector<std::unique_ptr<core::OptionElement>>;

/// The first of `elements`, or of the lists among them, with this id; null when there is none.
core::OptionElement* findOption(const OptionElements& elements, unsigned int id);

/// Elements below each other. Owns them.
class ListOption : public DescribedOption<core::OptionElement, core::OptionType::list> {
  public:
    ListOption(OptionDescription description, OptionElements elements)
        : DescribedOption(std::move(description)), elements_(std::move(elements)) {}

    const OptionElements& elements() const { return elements_; }

  private:
    OptionElements elements_;
};

}  // namespace qvo::zmx::mocap
