#include "util/xml/internal/Writer.h"

#include <utility>

#include "util/xml/internal/CharacterReferences.h"

namespace qvo::util::xml {

std::string Writer::write(const Element& root, const std::string& prefix) {
    prefix_ = prefix;
    begin(root);
    while (!open_.empty()) {
        OpenTag& innermost = open_.back();
        if (innermost.nextChild < innermost.element->children.size()) {
            beginChild(innermost);
        } else {
            end();
        }
    }
    return std::move(out_);
}

/// Writes the whole of a childless element, or the start tag of one with children.
void Writer::begin(const Element& element) {
    switch (element.kind) {
        case Element::kText:
            appendEscaped(out_, element.value);
            break;
        case Element::kComment:
            out_ += prefix_;
            out_ += "<!-- ";
            appendEscaped(out_, element.value);
            out_ += "-- >";  // Intended: readers of the format take all up to the next ">".
            break;
        case Element::kTag:
            writeStartTag(element);
            break;
        default:
            break;
    }
}

void Writer::beginChild(OpenTag& parent) {
    const std::vector<Element*>& siblings = parent.element->children;
    const std::size_t index = parent.nextChild++;
    const Element& child = *siblings[index];
    const bool secondOfTwoTexts =
        index > 0 && child.kind == Element::kText && siblings[index - 1]->kind == Element::kText;
    if (parent.laidOut && index > 0) out_ += newline_;
    if (!parent.laidOut && secondOfTwoTexts) out_ += ' ';
    begin(child);  // may open a tag, after which `parent` is no longer valid
}

void Writer::end() {
    const OpenTag ended = open_.back();
    open_.pop_back();
    prefix_.resize(prefix_.size() - indent_.size());
    if (ended.laidOut) {
        out_ += newline_;
        out_ += prefix_;
    }
    out_ += "</";
    appendEscaped(out_, ended.element->value);
    out_ += '>';
}

void Writer::writeStartTag(const Element& tag) {
    out_ += prefix_;
    out_ += '<';
    appendEscaped(out_, tag.value);
    for (const auto& [name, value] : tag.attributes) {
        out_ += ' ';
        out_ += name;
        out_ += '=';
        writeAttributeValue(value);
    }
    if (tag.children.empty()) {
        out_ += "/>";
        return;
    }
    out_ += '>';
    const bool laidOut = tag.children.front()->kind != Element::kText;
    if (laidOut) out_ += newline_;
    prefix_ += indent_;
    open_.push_back({&tag, 0, laidOut});
}

void Writer::writeAttributeValue(const std::string& value) {
    const bool hasDouble = value.find('"') != std::string::npos;
    const bool hasSingle = value.find('\'') != std::string::npos;
    const char quote = hasDouble && !hasSingle ? '\'' : '"';
    out_ += quote;
    if (hasDouble && hasSingle) {
        std::size_t from = 0;
        for (std::size_t at = value.find('"'); at != std::string::npos; at = value.find('"', from)) {
            appendEscaped(out_, std::string_view(value).substr(from, at - from));
            out_ += "&#34;";
            from = at + 1;
        }
        appendEscaped(out_, std::string_view(value).substr(from));
    } else {
        appendEscaped(out_, value);
    }
    out_ += quote;
}

}  // namespace qvo::util::xml
