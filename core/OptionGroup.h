#pragma once

#include <string>

#include "util/MessageNode.h"

namespace qvo::zmx::core {

/// What an option element is.
enum class OptionType : int { group = 0, list = 1, check = 2, button = 3 };

/// Message codes that option elements broadcast as origin.
inline constexpr int kOptionPressed = 16706;  ///< a button was pressed
inline constexpr int kOptionChanged = 16960;  ///< a check has a new value

/// One element of an option group: a message node with an id and a label.
class OptionElement : public util::MessageNode {
  public:
    virtual unsigned int getId() = 0;             // slot 16
    virtual const std::string& getLabel() = 0;    // slot 17
    virtual const std::string& getTooltip() = 0;  // slot 18
    virtual OptionType getType() = 0;             // slot 19
};

/// An element with a truth value.
class OptionCheck : public OptionElement {
  public:
    virtual bool getValue() = 0;            // slot 20
    virtual void setValue(bool value) = 0;  // slot 21
};

/// The group that the core builds from the plug-in's description; it owns its elements.
class OptionGroup : public OptionElement {
  public:
    /// The element with `id`, in the group or its lists; null when there is none.
    virtual OptionElement* findElement(unsigned int id) = 0;  // slot 20
};

}  // namespace qvo::zmx::core
