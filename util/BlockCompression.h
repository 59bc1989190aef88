#pragma once

#include <cstdint>
#include <string>

#include "util/ByteBuffer.h"

/// The product's own block format: static Huffman coding of a whole buffer with the symbol counts in front.
///
///     offset   size  field (little-endian, no gaps)
///     0        4     magic 0x005331CA
///     4        4     version 100
///     8        4     leaf count N, signed, 0..256
///     12       4     uncompressed length L, signed
///     16       5 N   leaf table: 1 byte symbol, 4 bytes signed weight, weights not falling
///     16+5N    rest  code bits of the L symbols, least significant bit first, last byte filled with zeros
///
/// No checksum, no end marker.
namespace qvo::util::BlockCompression {

/// Packs `input` as one block of 16 + 5*N + ceil(codeBits/8) bytes; an empty input gives the header alone.
/// Throws std::length_error above 2,147,483,647 bytes, which the length field cannot express.
/// Cost: one pass to count, one to encode.
ByteBuffer compress(const ByteBuffer& input);

/// The uncompressed bytes of a block; a buffer without a valid header comes back as an unchanged copy.
/// A damaged body never fails loudly: a truncated leaf table, a negative length, or a length without any leaf
/// gives an empty buffer, a code stream that ends early gives the symbols up to there, anything else wrong
/// bytes. Memory: at most 8 bytes out per byte of code stream, except that a single leaf stands for L equal
/// bytes; ask storedLength() first where that matters.
ByteBuffer decompress(const ByteBuffer& block);

/// True if `buffer` starts with a valid header (magic, version, N in 0..256); with `strict` also only if the
/// leaf table is complete and its weights don't fall.
bool isCompressed(const ByteBuffer& buffer, bool strict);

/// The length L that a block claims to unpack to (may be a lie, may be negative); -1 without a valid header.
std::int32_t storedLength(const ByteBuffer& buffer);

/// Fills `buffer` with the whole file. False, with `buffer` empty, if it cannot be opened or read.
bool readFile(const std::string& path, ByteBuffer& buffer);

/// Writes `buffer` as the whole file (binary, truncating). False if it cannot be opened or written.
bool writeFile(const ByteBuffer& buffer, const std::string& path);

}  // namespace qvo::util::BlockCompression
