#pragma once

#include <string>

#include "util/xml/Element.h"

namespace qvo::util::xml {

/// A tree in one line for comparison: name{attribute=value}(children), texts as 'text', comments as
/// !comment!.
inline std::string treeText(const Element& element) {
    if (element.kind == Element::kText) return '\'' + element.value + '\'';
    if (element.kind == Element::kComment) return '!' + element.value + '!';
    std::string text = element.kind == Element::kTag ? element.value : "?";
    for (const auto& [name, value] : element.attributes)
        text += '{' + name + '=' + value + '}';
    if (element.children.empty()) return text;
    text += '(';
    for (const Element* const child : element.children)
        text += treeText(*child) + ' ';
    text.back() = ')';
    return text;
}

}  // namespace qvo::util::xml
