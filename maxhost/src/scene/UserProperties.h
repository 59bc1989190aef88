#pragma once

#include <string>

namespace maxhost {

/// The user property text of a node: lines `key = value`, each ended by CR LF. A key starts its line after
/// optional blanks and tabs, holds no blank, tab or `=`, and compares without regard to (ASCII) case. Lines
/// of any other shape are kept and mean nothing. A value ends with its line: what a caller stores behind a
/// line break stays in the text as lines of their own. Every operation is linear in the text.
class UserProperties {
  public:
    const std::string& text() const { return text_; }
    void setText(std::string text) { text_ = std::move(text); }

    /// The text after the first `=` of the key's first line, outer blanks and tabs trimmed. False, and
    /// `value` untouched, when no line has the key. A null `value` only asks.
    bool find(const std::string& key, std::string* value) const;
    /// Rewrites the key's first line, or appends one. An empty value leaves the key present.
    void set(const std::string& key, const std::string& value);

  private:
    struct Line {
        size_t begin, end;            ///< the line without its line break
        size_t next;                  ///< start of the next line
        size_t valueBegin, valueEnd;  ///< trimmed value, when the line has the key
    };

    bool findLine(const std::string& key, Line& line) const;

    std::string text_;
};

}  // namespace maxhost
