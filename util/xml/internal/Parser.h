#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "util/xml/Element.h"
#include "util/xml/internal/Tokeniser.h"

namespace qvo::util::xml {

/// Builds an element tree from text. Keeps the open elements on a stack of its own, so depth costs memory
/// only; each finished element moves into its parent. Linear in the length of the text.
class Parser {
  public:
    /// `document` must outlive the parser.
    explicit Parser(std::string_view document) : tokens_(document) {}

    /// Fills the empty element `root` and returns an Element::ParseResult. On a fault `root` keeps its own
    /// name and attributes and its finished children; what was open below it is dropped.
    int parseInto(Element& root);

  private:
    int parseContent(Element& root);
    Element& innermost(Element& root) { return open_.empty() ? root : *open_.back(); }

    Tokeniser tokens_;
    std::vector<std::unique_ptr<Element>> open_;  ///< started below the root and not ended, outermost first
};

}  // namespace qvo::util::xml
