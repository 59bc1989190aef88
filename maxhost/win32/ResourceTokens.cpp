#include "maxhost/win32/ResourceTokens.h"

#include <cctype>

namespace maxhost::win32 {

namespace {

bool isWordLetter(char letter) {
    return std::isalnum(static_cast<unsigned char>(letter)) != 0 || letter == '_';
}

class Scanner {
  public:
    Scanner(const std::string& source, const std::string& sourceName, int firstLine)
        : text(source), file(sourceName), line(firstLine) {}

    ResourceTokens run() {
        while (skipBlanks()) {
            const char letter = text[at];
            if (letter == '#') {
                readDirective();
            } else if (letter == '"') {
                add(ResourceToken::Kind::Text, readText());
            } else if (std::isdigit(static_cast<unsigned char>(letter)) != 0) {
                readNumber();
            } else if (isWordLetter(letter)) {
                add(ResourceToken::Kind::Word, readWord());
            } else if (std::string(",|{}-").find(letter) != std::string::npos) {
                add(ResourceToken::Kind::Mark, std::string(1, text[at++]));
            } else {
                fail(std::string("unexpected character '") + letter + '\'');
            }
        }
        add(ResourceToken::Kind::End, std::string());
        return std::move(result);
    }

  private:
    [[noreturn]] void fail(const std::string& cause) const { throw ResourceScriptError(file, line, cause); }

    void add(ResourceToken::Kind kind, std::string content, long number = 0) {
        result.tokens.push_back(ResourceToken{kind, std::move(content), number, line});
    }

    bool startsWith(const char* mark) const { return text.compare(at, 2, mark) == 0; }

    /// Moves to the next character that counts; false at the end.
    bool skipBlanks() {
        while (at < text.size()) {
            if (startsWith("//")) {
                skipLine();
            } else if (startsWith("/*")) {
                skipComment();
            } else if (std::isspace(static_cast<unsigned char>(text[at])) != 0) {
                if (text[at++] == '\n') ++line;
            } else {
                return true;
            }
        }
        return false;
    }

    void skipLine() {
        const std::size_t end = text.find('\n', at);
        at = end == std::string::npos ? text.size() : end;
    }

    void skipComment() {
        const std::size_t end = text.find("*/", at + 2);
        if (end == std::string::npos) fail("the comment is not closed");
        for (; at < end; ++at) {
            if (text[at] == '\n') ++line;
        }
        at = end + 2;
    }

    void readDirective() {
        const std::size_t start = ++at;
        skipLine();
        std::string whole = text.substr(start, at - start);
        whole.erase(0, whole.find_first_not_of(" \t"));
        whole.erase(whole.find_last_not_of(" \t\r") + 1);
        const std::size_t blank = whole.find_first_of(" \t");
        ResourceDirective directive{whole.substr(0, blank), std::string(), line};
        if (blank != std::string::npos) directive.rest = whole.substr(whole.find_first_not_of(" \t", blank));
        result.directives.push_back(directive);
    }

    std::string readWord() {
        const std::size_t start = at;
        while (at < text.size() && isWordLetter(text[at]))
            ++at;
        return text.substr(start, at - start);
    }

    void readNumber() {
        std::string word = readWord();
        while (word.size() > 1 && std::string("lLuU").find(word.back()) != std::string::npos)
            word.pop_back();
        const bool hexadecimal = word.size() > 2 && word[0] == '0' && (word[1] == 'x' || word[1] == 'X');
        const std::string digits = hexadecimal ? word.substr(2) : word;
        const char* const allowed = hexadecimal ? "0123456789abcdefABCDEF" : "0123456789";
        const std::size_t longest = hexadecimal ? 8 : 9;
        if (digits.find_first_not_of(allowed) != std::string::npos || digits.size() > longest) {
            fail("bad number \"" + word + '"');
        }
        add(ResourceToken::Kind::Number, word, std::stol(digits, nullptr, hexadecimal ? 16 : 10));
    }

    /// A text ends on its own line; "" inside stands for one quote.
    std::string readText() {
        std::string content;
        for (++at; at < text.size() && text[at] != '\n'; ++at) {
            if (text[at] == '"') {
                if (at + 1 >= text.size() || text[at + 1] != '"') {
                    ++at;
                    return content;
                }
                ++at;
            } else if (text[at] == '\\') {
                content += escaped();
                continue;
            }
            content += text[at];
        }
        fail("the text's closing quote is missing");
    }

    char escaped() {
        if (++at < text.size()) {
            switch (text[at]) {
                case 'n':
                    return '\n';
                case 't':
                    return '\t';
                case '0':
                    return '\0';
                case '\\':
                    return '\\';
                default:
                    break;
            }
        }
        fail("unknown escape in a text");
    }

    const std::string& text;
    const std::string& file;
    std::size_t at = 0;
    int line;
    ResourceTokens result;
};

}  // namespace

ResourceTokens readResourceTokens(const std::string& text, const std::string& file, int firstLine) {
    return Scanner(text, file, firstLine).run();
}

}  // namespace maxhost::win32
