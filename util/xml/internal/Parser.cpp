#include "util/xml/internal/Parser.h"

#include <cstddef>
#include <string>
#include <utility>

#include "util/xml/internal/Ascii.h"
#include "util/xml/internal/CharacterReferences.h"

namespace qvo::util::xml {
namespace {

std::string_view withoutLeadingSpace(std::string_view text) {
    while (!text.empty() && isSpace(text.front()))
        text.remove_prefix(1);
    return text;
}

/// Length of what stands before the first white space or, if given, the character `stop`.
std::size_t wordLength(std::string_view text, char stop = ' ') {
    std::size_t length = 0;
    while (length < text.size() && !isSpace(text[length]) && text[length] != stop)
        ++length;
    return length;
}

int parseAttributes(std::string_view list, Element& element) {
    for (;;) {
        list = withoutLeadingSpace(list);
        if (list.empty() || list.front() == '?') return Element::kParsed;
        const std::size_t equals = wordLength(list, '=');
        const std::size_t open = equals + 1;
        if (open >= list.size() || list[equals] != '=') return Element::kMalformed;
        if (list[open] != '"' && list[open] != '\'') return Element::kMalformed;
        const std::size_t close = list.find(list[open], open + 1);
        if (close == std::string_view::npos) return Element::kMalformed;
        element.attributes[std::string(list.substr(0, equals))] =
            unescaped(list.substr(open + 1, close - open - 1));
        list.remove_prefix(close + 1);
    }
}

/// Makes the empty `element` from its own token; a start tag's children are left to the caller.
int fill(Element& element, const Token& token) {
    switch (token.kind) {
        case TokenKind::kText:
            element.kind = Element::kText;
            appendUnescaped(element.value, token.raw);
            return Element::kParsed;
        case TokenKind::kComment:
            element.kind = Element::kComment;
            appendUnescaped(element.value, token.raw);
            return Element::kParsed;
        case TokenKind::kStartTag:
        case TokenKind::kEmptyTag: {
            element.kind = Element::kTag;
            const std::string_view text = withoutLeadingSpace(token.raw);
            const std::size_t nameLength = wordLength(text);
            appendUnescaped(element.value, text.substr(0, nameLength));
            return parseAttributes(text.substr(nameLength), element);
        }
        case TokenKind::kEndTag:
            return Element::kNoElement;
    }
    return Element::kMalformed;
}

}  // namespace

int Parser::parseInto(Element& root) {
    Token token;
    if (!tokens_.next(token)) return Element::kNoElement;
    if (token.kind != TokenKind::kStartTag && token.kind != TokenKind::kEmptyTag) return Element::kNoElement;
    const bool isDeclaration = token.raw.front() == '?';
    if (isDeclaration && !tokens_.next(token)) return Element::kMalformed;
    const int result = fill(root, token);
    if (result != Element::kParsed || token.kind != TokenKind::kStartTag) return result;
    return parseContent(root);
}

int Parser::parseContent(Element& root) {
    Token token;
    while (tokens_.next(token)) {
        if (token.kind == TokenKind::kEndTag) {
            if (unescaped(token.raw) != innermost(root).value) return Element::kWrongEndTag;
            if (open_.empty()) return Element::kParsed;
            std::unique_ptr<Element> ended = std::move(open_.back());
            open_.pop_back();
            innermost(root).appendOwned(std::move(ended));
            continue;
        }
        auto child = std::make_unique<Element>();
        const int result = fill(*child, token);
        if (result != Element::kParsed) return result;
        if (token.kind == TokenKind::kStartTag) {
            open_.push_back(std::move(child));
        } else {
            innermost(root).appendOwned(std::move(child));
        }
    }
    return Element::kUnclosed;
}

}  // namespace qvo::util::xml
