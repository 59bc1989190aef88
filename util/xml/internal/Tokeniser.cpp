#include "util/xml/internal/Tokeniser.h"

#include "util/xml/internal/Ascii.h"
#include "util/xml/internal/CharacterReferences.h"

namespace qvo::util::xml {
namespace {

bool isEmpty(const Token& token) {
    if (token.raw.empty()) return true;
    // Only a text that starts with a reference can unescape to nothing.
    return token.kind == TokenKind::kText && token.raw.front() == '&' && unescaped(token.raw).empty();
}

}  // namespace

Tokeniser::Tokeniser(std::string_view document) : rest_(document.substr(0, document.find('\0'))) {}

bool Tokeniser::next(Token& token) {
    while (!rest_.empty()) {
        std::size_t start = 0;
        while (start < rest_.size() && isSpace(rest_[start]))
            ++start;
        if (start < rest_.size() && rest_[start] == '<') {
            rest_.remove_prefix(start + 1);
            token = takeMarkup();
        } else {
            token = takeText(start);
        }
        if (!isEmpty(token)) return true;
    }
    return false;
}

Token Tokeniser::takeText(std::size_t from) {
    const std::string_view raw = rest_.substr(0, rest_.find('<', from));
    rest_.remove_prefix(raw.size());
    return {TokenKind::kText, raw};
}

Token Tokeniser::takeMarkup() {
    Token token{TokenKind::kStartTag, {}};
    if (!rest_.empty() && (rest_.front() == '/' || rest_.front() == '!')) {
        token.kind = rest_.front() == '/' ? TokenKind::kEndTag : TokenKind::kComment;
        rest_.remove_prefix(1);
    }
    const std::size_t end = rest_.find('>');
    token.raw = rest_.substr(0, end);
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
    const bool closed = end != std::string_view::npos;
    // Also in an end tag: "</a/>" is an empty element named a.
    if (closed && token.kind != TokenKind::kComment && !token.raw.empty() && token.raw.back() == '/') {
        token.kind = TokenKind::kEmptyTag;
        token.raw.remove_suffix(1);
    }
    return token;
}

}  // namespace qvo::util::xml
