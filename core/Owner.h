#pragma once

#include <string>

#include "util/xml/Element.h"

namespace qvo::zmx::core {

/// The tool or component of the core on whose behalf nodes exist. Compared by identity, never by name; not
/// owned by the adaptor.
class Owner {
  public:
    /// First part of the host names of the owner's nodes, and the name under which its tags are found again.
    virtual const std::string& getName() = 0;  // slot 0

    /// Writes the owner's state as "masternode" children of `masternodes`; left empty, nothing is tagged.
    virtual void writeState(util::xml::Element& masternodes) = 0;  // slot 1

  protected:
    Owner() = default;
    Owner(const Owner&) = default;
    Owner& operator=(const Owner&) = default;
    ~Owner() = default;
};

}  // namespace qvo::zmx::core
