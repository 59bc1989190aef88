#include "util/xml/Element.h"

#include <fstream>
#include <istream>
#include <utility>

#include "util/xml/internal/CharacterReferences.h"
#include "util/xml/internal/Parser.h"
#include "util/xml/internal/Writer.h"

namespace qvo::util::xml {

Element::Element(const std::string& text) : Element() {
    parse(text);
}

Element::Element(Kind elementKind, const std::string& elementValue)
    : value(elementValue), kind(elementKind) {}

Element::Element(const Element& other) : Element() {
    other.copyInto(*this);
}

Element::Element(Element&& other) noexcept : Element() {
    swap(other);
}

Element& Element::operator=(Element&& other) noexcept {
    Element taken(std::move(other));  // first out of the old tree, which `other` may be a part of
    swap(taken);
    return *this;
}

Element::~Element() {
    destroyChildren();
}

Element& Element::assign(const Element& other) {
    if (&other == this) return *this;
    Element copy(other);  // before the old children go, which `other` may be one of
    swap(copy);
    return *this;
}

const std::string& Element::setValue(const std::string& text) {
    return value = text;
}

Element& Element::addChild(const Element& child) {
    return adoptChild(Element(child));
}

void Element::clear() {
    attributes.clear();
    destroyChildren();
    value.clear();
}

int Element::parse(const std::string& text) {
    Element former;  // `text` may lie in what this element holds, which therefore lives until the end
    swap(former);
    kind = former.kind;
    return Parser(&text == &value ? former.value : text).parseInto(*this);
}

int Element::read(std::istream& stream) {
    std::string text;
    for (std::string line; std::getline(stream, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();  // half of the line end
        text += line;
    }
    return parse(text);
}

int Element::readFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return file.is_open() ? read(file) : static_cast<int>(kFileNotOpened);
}

std::string Element::toString(const std::string& newline, const std::string& indent,
                              const std::string& prefix) const {
    return Writer(newline, indent).write(*this, prefix);
}

bool Element::writeFile(const std::string& path) const {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    if (!file.is_open()) return false;
    if (!(file << "<?xml version=\"1.0\"?>\n")) return false;
    file << toString("\n", "\t");
    file.close();  // what the stream still held may not fit on the disk
    return !file.fail();
}

std::string Element::escape(const std::string& text) {
    std::string result;
    appendEscaped(result, text);
    return result;
}

std::string Element::unescape(const std::string& text) {
    return unescaped(text);
}

const Element* Element::findTag(const std::string& name) const {
    for (const Element* const child : children) {
        if (child->kind == kTag && child->value == name) return child;
    }
    return nullptr;
}

Element* Element::findTag(const std::string& name) {
    return const_cast<Element*>(static_cast<const Element*>(this)->findTag(name));
}

const std::string& Element::text() const {
    static const std::string kEmpty;
    for (const Element* const child : children) {
        if (child->kind == kText) return child->value;
    }
    return kEmpty;
}

const std::string& Element::textOf(const std::string& name) const {
    static const Element kNone;
    const Element* const tag = findTag(name);
    return tag ? tag->text() : kNone.text();
}

std::string Element::attribute(const std::string& name, const std::string& fallback) const {
    const auto found = attributes.find(name);
    return found == attributes.end() ? fallback : found->second;
}

Element& Element::addTag(const std::string& name) {
    Element empty;
    empty.kind = kTag;
    Element& tag = addChild(empty);
    tag.setValue(name);
    return tag;
}

Element& Element::addTextTag(const std::string& name, const std::string& text) {
    Element& tag = addTag(name);
    Element empty;
    empty.kind = kText;
    tag.addChild(empty).setValue(text);
    return tag;
}

Element& Element::adoptChild(Element&& child) {
    return appendOwned(std::make_unique<Element>(std::move(child)));
}

Element Element::takeChild(std::size_t index) {
    const std::unique_ptr<Element> taken(children[index]);
    children.erase(children.begin() + static_cast<std::ptrdiff_t>(index));
    return std::move(*taken);
}

Element& Element::appendOwned(std::unique_ptr<Element> child) {
    children.push_back(child.get());
    return *child.release();  // deleted by destroyChildren or takeChild
}

void Element::copyInto(Element& target) const {
    struct Pair {
        const Element* from;
        Element* to;
    };
    std::vector<Pair> pending{{this, &target}};
    while (!pending.empty()) {
        const Pair pair = pending.back();
        pending.pop_back();
        pair.to->attributes = pair.from->attributes;
        pair.to->value = pair.from->value;
        pair.to->kind = pair.from->kind;
        pair.to->children.reserve(pair.from->children.size());
        for (const Element* const child : pair.from->children) {
            pending.push_back({child, &pair.to->appendOwned(std::make_unique<Element>())});
        }
    }
}

void Element::swap(Element& other) noexcept {
    attributes.swap(other.attributes);
    children.swap(other.children);
    value.swap(other.value);
    std::swap(kind, other.kind);
}

/// Deletes all descendants without recursion and without memory of its own: on the way down, the place of the
/// child being destroyed in its parent's vector holds the way back up.
void Element::destroyChildren() noexcept {
    Element* node = this;
    Element* above = nullptr;
    for (;;) {
        if (!node->children.empty()) {
            Element* const child = std::exchange(node->children.back(), above);
            above = std::exchange(node, child);
            continue;
        }
        if (node == this) return;
        const std::unique_ptr<Element> finished(
            std::exchange(node, above));  // its own destructor finds no children
        above = node->children.back();
        node->children.pop_back();
    }
}

}  // namespace qvo::util::xml
