#pragma once

#include <string>
#include <utility>

#include "core/OptionGroup.h"

namespace qvo::zmx::mocap {

/// What every option element has.
struct OptionDescription {
    unsigned int id = 0;  ///< 0 for elements that nobody asks for
    std::string label;
    std::string tooltip;
};

/// The part that all option elements share. `Interface` is one of the classes in core/OptionGroup.h.
template <class Interface, core::OptionType Type>
class DescribedOption : public Interface {
  public:
    explicit DescribedOption(OptionDescription description) : description_(std::move(description)) {
        this->util::MessageNode::setName(description_.label);
    }

    unsigned int getId() override { return description_.id; }
    const std::string& getLabel() override { return description_.label; }
    const std::string& getTooltip() override { return description_.tooltip; }
    core::OptionType getType() override { return Type; }

  protected:
    /// Tells all that listen to this element.
    void broadcastCode(int code) {
        util::Message message(code);
        this->broadcastAsOrigin(message);
    }

  private:
    OptionDescription description_;
};

}  // namespace qvo::zmx::mocap
