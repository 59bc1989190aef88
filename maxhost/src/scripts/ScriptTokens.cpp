#include "maxhost/src/scripts/ScriptTokens.h"

#include <cctype>
#include <stdexcept>

namespace maxhost {

namespace {

using Kind = ScriptToken::Kind;

bool isWordLetter(char letter) {
    return std::isalnum(static_cast<unsigned char>(letter)) != 0 || letter == '_';
}

Kind markKind(char letter) {
    switch (letter) {
        case '=':
            return Kind::Assign;
        case '.':
            return Kind::Dot;
        case ':':
            return Kind::Colon;
        case '(':
            return Kind::Open;
        case ')':
            return Kind::Close;
        case ';':
        case '\n':
            return Kind::End;
        default:
            throw std::runtime_error(std::string("unexpected character '") + letter + '\'');
    }
}

}  // namespace

std::vector<ScriptToken> readScriptTokens(const std::string& script) {
    std::vector<ScriptToken> tokens;
    std::size_t at = 0;
    const auto takeWord = [&] {
        const std::size_t start = at;
        while (at < script.size() && isWordLetter(script[at]))
            ++at;
        return script.substr(start, at - start);
    };
    while (at < script.size()) {
        const char letter = script[at];
        if (letter == ' ' || letter == '\t' || letter == '\r') {
            ++at;
        } else if (isWordLetter(letter)) {
            tokens.push_back({Kind::Word, takeWord()});
        } else if (letter == '#') {
            ++at;
            tokens.push_back({Kind::Name, takeWord()});
        } else if (letter == '\'') {
            const std::size_t end = script.find('\'', at + 1);
            if (end == std::string::npos) throw std::runtime_error("the closing quote is missing");
            tokens.push_back({Kind::Word, script.substr(at + 1, end - at - 1)});
            at = end + 1;
        } else {
            tokens.push_back({markKind(letter), std::string(1, letter)});
            ++at;
        }
    }
    tokens.push_back({Kind::End, ";"});
    return tokens;
}

}  // namespace maxhost
