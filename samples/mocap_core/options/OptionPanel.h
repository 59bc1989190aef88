#pragma once

#include <map>
#include <memory>

#include "core/AdaptorInterface.h"
#include "samples/mocap_core/options/GroupOption.h"

namespace qvo::zmx::mocap {

/// The adaptor's options in the core: the elements through which they are changed, and the core's own copy of
/// the values.
class OptionPanel {
  public:
    /// Builds the elements from the description that the adaptor's library carries, and hands them to the
    /// adaptor. When there is none, the log says so and the panel stays empty.
    void open(core::AdaptorInterface& adaptor);

    /// An option's value as the adaptor tells it.
    void noteValue(unsigned int id, bool value);

    /// What the adaptor told last; false before it told anything.
    bool value(unsigned int id) const;

    /// Sets a check, or presses a button, as the user would: the adaptor acts on it before this returns.
    /// Throws std::runtime_error when the panel has no such element.
    void choose(unsigned int id, bool value);
    void press(unsigned int id);

  private:
    core::OptionElement& find(unsigned int id, core::OptionType type) const;

    std::unique_ptr<GroupOption> group_;
    std::map<unsigned int, bool> values_;
};

}  // namespace qvo::zmx::mocap
