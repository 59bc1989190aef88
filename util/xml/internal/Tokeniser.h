#pragma once

#include <cstddef>
#include <string_view>

namespace qvo::util::xml {

enum class TokenKind { kText, kStartTag, kEndTag, kEmptyTag, kComment };

/// A piece of the document. For a text the raw characters with leading white space; for a tag or comment what
/// stands between the "<" (with its "/" or "!") and the ">" (with its "/").
struct Token {
    TokenKind kind = TokenKind::kText;
    std::string_view raw;
};

/// Cuts a document into tokens, one at a time, without copying. The document ends at its end or at a zero
/// byte. Never fails: a "<" without ">" makes a token up to the end.
class Tokeniser {
  public:
    /// `document` must outlive the tokeniser and its tokens.
    explicit Tokeniser(std::string_view document);

    /// The next token that is not empty; false at the end. White space in front of a "<" and texts that
    /// unescape to nothing make no token.
    bool next(Token& token);

  private:
    Token takeText(std::size_t from);
    Token takeMarkup();

    std::string_view rest_;
};

}  // namespace qvo::util::xml
