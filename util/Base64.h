#pragma once

#include <cstddef>
#include <string>

#include "util/ByteBuffer.h"

/// Base64 with the standard alphabet (RFC 4648: A-Z a-z 0-9 + /) and "=" padding, never any line break.
namespace qvo::util::Base64 {

/// Four characters per three bytes, the last group padded; an empty buffer gives an empty string.
/// Example: {'A'} gives "QQ==".
std::string encode(const ByteBuffer& bytes);

/// The bytes of `text`; empty when its length is no multiple of four or any character is wrong (white space
/// and misplaced "=" included). Every group may be padded, not only the last; unused low bits are ignored.
ByteBuffer decode(const std::string& text);

/// The four characters for the up to three bytes of `bytes` from `offset`; "====" when none remain.
std::string encodeGroup(const ByteBuffer& bytes, std::size_t offset);

/// Appends the up to three bytes of the four characters of `text` from `offset`.
/// False, with `out` unchanged, on a wrong character or fewer than four of them.
bool decodeGroup(const std::string& text, std::size_t offset, ByteBuffer& out);

/// Position 0..63 of `character` in the alphabet, or -1.
int indexOf(char character);

}  // namespace qvo::util::Base64
