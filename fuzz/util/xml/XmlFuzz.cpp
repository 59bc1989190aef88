// Properties: parsing never crashes and answers with a known result; a tree that the format can carry is the
// same after writing and reading, in one line and laid out; escaping any bytes can be undone.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "fuzz/Require.h"
#include "util/xml/Element.h"
#include "util/xml/internal/Ascii.h"

using qvo::util::xml::Element;
using qvo::util::xml::isSpace;

namespace {

bool isWord(const std::string& name, const char* forbidden) {
    return !name.empty() && name.find_first_of(forbidden) == std::string::npos &&
           std::none_of(name.begin(), name.end(), isSpace);
}

/// What reads back unchanged. The rest is lost by design: comments gain their dashes, a ">" ends a tag early,
/// texts side by side become one, texts of nothing but blanks are dropped.
bool isCarried(const Element& element, bool laidOut) {
    if (element.kind == Element::kText)
        return !std::all_of(element.value.begin(), element.value.end(), isSpace);
    if (element.kind != Element::kTag || !isWord(element.value, "!?/>")) return false;
    for (const auto& [name, value] : element.attributes) {
        if (!isWord(name, "?&#/<>") || value.find('>') != std::string::npos) return false;
    }
    bool afterText = false;
    for (std::size_t i = 0; i < element.children.size(); ++i) {
        const bool text = element.children[i]->kind == Element::kText;
        // Laid out, a text beside tags gains the newlines and indents around it.
        if (text && (afterText || (laidOut && element.children.size() > 1))) return false;
        afterText = text;
    }
    return true;
}

/// Walks two trees of any depth side by side; true if they are equal.
bool equal(const Element& first, const Element& second) {
    std::vector<std::pair<const Element*, const Element*>> open{{&first, &second}};
    while (!open.empty()) {
        const auto [a, b] = open.back();
        open.pop_back();
        if (a->kind != b->kind || a->value != b->value || a->attributes != b->attributes) return false;
        if (a->children.size() != b->children.size()) return false;
        for (std::size_t i = 0; i < a->children.size(); ++i)
            open.emplace_back(a->children[i], b->children[i]);
    }
    return true;
}

bool isTreeCarried(const Element& root, bool laidOut) {
    std::vector<const Element*> open{&root};
    while (!open.empty()) {
        const Element* const element = open.back();
        open.pop_back();
        if (!isCarried(*element, laidOut)) return false;
        open.insert(open.end(), element->children.begin(), element->children.end());
    }
    return root.kind == Element::kTag;
}

void checkReadsBack(const Element& element, const std::string& written, const char* property) {
    Element read;
    require(read.parse(written) == Element::kParsed, property);
    require(equal(element, read), property);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    require(Element::unescape(Element::escape(text)) == text, "unescape(escape(x)) == x");
    Element::unescape(text);

    Element element;
    const int result = element.parse(text);
    require(result == 0 || (result >= 2 && result <= 5), "a known result");
    Element copy(element);
    require(equal(copy, element), "a copy is equal");

    // Also what a failed parse left behind is a tree like any other.
    const std::string line = element.toString();
    if (isTreeCarried(element, false)) checkReadsBack(element, line, "one line reads back");
    const std::string laidOut = element.toString("\n", "\t", " ");
    if (isTreeCarried(element, true)) checkReadsBack(element, laidOut, "layout reads back");
    if (!element.children.empty()) copy = std::move(*copy.children.front());
    return 0;
}
