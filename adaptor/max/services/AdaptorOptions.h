#pragma once

#include "core/OptionGroup.h"
#include "util/Message.h"
#include "util/MessageNode.h"

/// What the adaptor does with its option group, which the core builds and binds.
namespace qvo::zmx::adaptor::max {

/// Shows the stored values in the group's check elements and makes `listener` hear the adaptor's elements.
/// Elements that the group lacks are skipped.
void bindOptions(core::OptionGroup& options, util::MessageNode& listener);

/// Stores the value of a check option and tells the attached core of it.
void storeOption(unsigned int id, bool value);

/// Acts on a message of an option element: stores a changed check, inside an undo group named by its label,
/// and tells the core; converts all controllers when the button is pressed. Other messages are ignored.
void handleOptionMessage(const util::Message& message);

}  // namespace qvo::zmx::adaptor::max
