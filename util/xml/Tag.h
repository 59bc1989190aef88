#pragma once

#include "util/xml/Element.h"

namespace qvo::util::xml {

/// A tag named `name` without attributes or content.
class Tag : public Element {
  public:
    explicit Tag(const std::string& name) : Element(kTag, name) {}
};

}  // namespace qvo::util::xml
