#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "samples/mocap_core/FileError.h"

namespace qvo::zmx::mocap {

/// A word of the text, or one of the marks '{', '}' and ':'. Empty text means the end of the file.
struct Token {
    std::string_view text;
    std::size_t line = 1;  ///< where it stands, from 1

    bool atEnd() const { return text.empty(); }
    /// Keywords are compared without regard to case (ASCII): exporters do not agree on it.
    bool is(std::string_view keyword) const;
};

/// Splits a clip's text into tokens. Blanks and tabs separate words; "\n", "\r\n" and a lone "\r" end a line.
/// The text is not copied: it must outlive the tokenizer and its tokens. Cost: one pass.
class Tokenizer {
  public:
    /// `file` appears in messages only.
    Tokenizer(std::string_view text, const std::string& file);

    const Token& peek();
    Token next();
    /// Takes the next token if it is `keyword`.
    bool accept(std::string_view keyword);
    /// Takes the next token, which must be `keyword`; throws FileError otherwise.
    void expect(std::string_view keyword);
    /// Takes what remains of the present line up to its end or a '{', trimmed. Joint names may hold blanks.
    Token restOfLine();

    /// Takes a finite number; `what` names it in the message. Independent of the locale. Throws FileError.
    double number(std::string_view what);
    /// Takes a number of things, 0 or more. Throws FileError.
    std::size_t count(std::string_view what);

    [[noreturn]] void fail(const Token& where, const std::string& cause) const;
    /// How a message calls a token: its text between quotes, or the end of the file.
    static std::string quoted(const Token& token);

  private:
    void scan();
    void skipBlanks();

    std::string_view text_;
    std::string file_;
    std::size_t position_ = 0;
    std::size_t line_ = 1;
    std::size_t lastLine_ = 1;  // of the last word read: where a message about the end of the file points
    Token ahead_;
    bool hasAhead_ = false;
};

}  // namespace qvo::zmx::mocap
