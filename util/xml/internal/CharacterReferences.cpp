#include "util/xml/internal/CharacterReferences.h"

#include <cstddef>

#include "util/xml/internal/Ascii.h"

namespace qvo::util::xml {
namespace {

bool staysPlain(char c) {
    return isPrintable(c) && c != '&' && c != '<';
}

void appendReference(std::string& out, char c) {
    out += "&#";
    out += std::to_string(static_cast<unsigned>(static_cast<unsigned char>(c)));
    out += ';';
}

/// Resolves the reference whose "&#" stands at `at` and returns the position after it.
/// All hexadecimal digits are taken also in decimal mode, where the number ends at the first letter.
std::size_t appendResolved(std::string& out, std::string_view text, std::size_t at) {
    std::size_t next = at + 2;
    const int base = next < text.size() && text[next] == 'x' ? 16 : 10;
    if (base == 16) ++next;
    unsigned number = 0;  // unsigned, so that endless digits wrap; only the low byte is used
    bool inNumber = true;
    bool any = false;
    for (; next < text.size() && hexDigit(text[next]) >= 0; ++next) {
        inNumber = inNumber && hexDigit(text[next]) < base;
        if (!inNumber) continue;
        number = number * static_cast<unsigned>(base) + static_cast<unsigned>(hexDigit(text[next]));
        any = true;
    }
    if (any) out += static_cast<char>(static_cast<unsigned char>(number & 0xFFu));
    return next + 1;  // the one character after the digits, normally ";", may lie past the end
}

}  // namespace

void appendEscaped(std::string& out, std::string_view text) {
    std::size_t plainFrom = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (staysPlain(text[i])) continue;
        out.append(text, plainFrom, i - plainFrom);
        appendReference(out, text[i]);
        plainFrom = i + 1;
    }
    out.append(text, plainFrom, std::string_view::npos);
}

void appendUnescaped(std::string& out, std::string_view text) {
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t reference = text.find("&#", at);
        out.append(text, at, reference == std::string_view::npos ? reference : reference - at);
        if (reference == std::string_view::npos) return;
        at = appendResolved(out, text, reference);
    }
}

std::string unescaped(std::string_view text) {
    std::string result;
    appendUnescaped(result, text);
    return result;
}

}  // namespace qvo::util::xml
