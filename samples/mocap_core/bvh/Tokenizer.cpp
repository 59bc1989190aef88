#include "samples/mocap_core/bvh/Tokenizer.h"

#include <algorithm>
#include <optional>

#include "samples/mocap_core/FileText.h"
#include "samples/mocap_core/Numbers.h"

namespace qvo::zmx::mocap {

namespace {

bool isLineEnd(char c) {
    return c == '\n' || c == '\r';
}

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\v' || c == '\f';
}

bool isMark(char c) {
    return c == '{' || c == '}' || c == ':';
}

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

bool Token::is(std::string_view keyword) const {
    return std::equal(text.begin(), text.end(), keyword.begin(), keyword.end(),
                      [](char a, char b) { return lower(a) == lower(b); });
}

Tokenizer::Tokenizer(std::string_view text, const std::string& file)
    : text_(withoutByteOrderMark(text)), file_(file) {}

const Token& Tokenizer::peek() {
    if (!hasAhead_) scan();
    return ahead_;
}

Token Tokenizer::next() {
    peek();
    hasAhead_ = false;
    return ahead_;
}

bool Tokenizer::accept(std::string_view keyword) {
    if (!peek().is(keyword)) return false;
    hasAhead_ = false;
    return true;
}

void Tokenizer::expect(std::string_view keyword) {
    const Token token = next();
    if (!token.is(keyword)) fail(token, std::string(keyword) + " expected, " + quoted(token) + " found");
}

Token Tokenizer::restOfLine() {
    // A token read ahead would already have left the line. Callers never peek before they ask for a name.
    while (position_ < text_.size() && isBlank(text_[position_]))
        ++position_;
    std::size_t end = position_;
    while (end < text_.size() && !isLineEnd(text_[end]) && text_[end] != '{')
        ++end;
    std::string_view rest = text_.substr(position_, end - position_);
    position_ = end;
    while (!rest.empty() && isBlank(rest.back()))
        rest.remove_suffix(1);
    lastLine_ = line_;
    return {rest, line_};
}

double Tokenizer::number(std::string_view what) {
    const Token token = next();
    double value = 0.0;
    switch (parseNumber(token.text, value)) {
        case NumberFault::none:
            return value;
        case NumberFault::outOfRange:
            fail(token, quoted(token) + " is out of range for " + std::string(what));
        case NumberFault::notFinite:
            fail(token, quoted(token) + " is not a finite number for " + std::string(what));
        case NumberFault::notANumber:
            break;
    }
    fail(token, quoted(token) + " is not a number for " + std::string(what));
}

std::size_t Tokenizer::count(std::string_view what) {
    const Token token = next();
    const std::optional<std::size_t> value = parseCount(token.text);
    if (!value) fail(token, quoted(token) + " is not a " + std::string(what));
    return *value;
}

void Tokenizer::fail(const Token& where, const std::string& cause) const {
    throw FileError(file_, where.line, cause);
}

std::string Tokenizer::quoted(const Token& token) {
    if (token.atEnd()) return "the end of the file";
    return "\"" + FileError::printable(std::string(token.text)) + "\"";
}

void Tokenizer::scan() {
    skipBlanks();
    hasAhead_ = true;
    if (position_ == text_.size()) {
        ahead_ = {{}, lastLine_};
        return;
    }
    std::size_t end = position_ + 1;
    if (!isMark(text_[position_])) {
        while (end < text_.size() && !isBlank(text_[end]) && !isLineEnd(text_[end]) && !isMark(text_[end]))
            ++end;
    }
    ahead_ = {text_.substr(position_, end - position_), line_};
    position_ = end;
    lastLine_ = line_;
}

void Tokenizer::skipBlanks() {
    for (; position_ < text_.size(); ++position_) {
        const char c = text_[position_];
        if (c == '\n' || (c == '\r' && text_.substr(position_ + 1, 1) != "\n")) {
            ++line_;
        } else if (c != '\r' && !isBlank(c)) {
            return;
        }
    }
}

}  // namespace qvo::zmx::mocap
