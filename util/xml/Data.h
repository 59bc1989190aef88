#pragma once

#include "util/xml/Element.h"

namespace qvo::util::xml {

/// A text that carries data, such as Base64; in the tree it is a text like any other.
class Data : public Element {
  public:
    explicit Data(const std::string& data) : Element(kText, data) {}
};

}  // namespace qvo::util::xml
