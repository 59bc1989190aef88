#pragma once

namespace qvo::util::xml {

// Character classes of ASCII, whatever locale the host has set. Bytes above 127 belong to none.

constexpr bool isSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// Blank, letter, digit or punctuation.
constexpr bool isPrintable(char c) {
    return c >= ' ' && c <= '~';
}

/// Value of a hexadecimal digit, or -1.
constexpr int hexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

}  // namespace qvo::util::xml
