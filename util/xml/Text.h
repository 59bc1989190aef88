#pragma once

#include "util/xml/Element.h"

namespace qvo::util::xml {

/// A piece of text (unescaped).
class Text : public Element {
  public:
    explicit Text(const std::string& text) : Element(kText, text) {}
};

}  // namespace qvo::util::xml
