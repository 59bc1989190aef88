#include "util/BlockCompression.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <fstream>
#include <limits>
#include <stdexcept>
#include <utility>
#include <vector>

#include "util/internal/HuffmanTree.h"

namespace qvo::util::BlockCompression {
namespace {

constexpr std::uint32_t kMagic = 0x005331CA;
constexpr std::uint32_t kVersion = 100;
constexpr std::size_t kHeaderSize = 16;
constexpr std::size_t kLeafSize = 5;
constexpr std::int32_t kMaxLeaves = 256;

struct Header {
    std::int32_t leafCount;
    std::int32_t length;
};

void put32(ByteBuffer& out, std::uint32_t number) {
    for (int shift = 0; shift < 32; shift += 8)
        out.push_back(static_cast<unsigned char>(number >> shift & 0xFFu));
}

std::uint32_t get32(const ByteBuffer& buffer, std::size_t at) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < 4; ++i)
        number |= static_cast<std::uint32_t>(buffer[at + i]) << (8 * i);
    return number;
}

std::int32_t getSigned32(const ByteBuffer& buffer, std::size_t at) {
    return static_cast<std::int32_t>(get32(buffer, at));
}

/// False if `buffer` does not start with a valid header.
bool readHeader(const ByteBuffer& buffer, Header& header) {
    if (buffer.size() < kHeaderSize) return false;
    header = {getSigned32(buffer, 8), getSigned32(buffer, 12)};
    return get32(buffer, 0) == kMagic && get32(buffer, 4) == kVersion && header.leafCount >= 0 &&
           header.leafCount <= kMaxLeaves;
}

std::size_t streamStart(const Header& header) {
    return kHeaderSize + kLeafSize * static_cast<std::size_t>(header.leafCount);
}

/// The leaf table as stored; empty if the buffer ends inside it.
std::vector<HuffmanNode> readLeaves(const ByteBuffer& block, const Header& header) {
    std::vector<HuffmanNode> leaves;
    if (block.size() < streamStart(header)) return leaves;
    leaves.resize(static_cast<std::size_t>(header.leafCount));
    std::size_t at = kHeaderSize;
    for (HuffmanNode& leaf : leaves) {
        leaf.symbol = block[at];
        leaf.weight = getSigned32(block, at + 1);
        at += kLeafSize;
    }
    return leaves;
}

std::vector<HuffmanNode> countLeaves(const ByteBuffer& input) {
    std::array<std::int32_t, 256> counts{};
    for (const unsigned char byte : input)
        ++counts[byte];
    std::vector<HuffmanNode> leaves;
    for (int symbol = 255; symbol >= 0; --symbol) {
        const std::int32_t count = counts[static_cast<std::size_t>(symbol)];
        if (count == 0) continue;
        HuffmanNode leaf;
        leaf.weight = count;
        leaf.symbol = symbol;
        leaves.push_back(leaf);
    }
    std::stable_sort(leaves.begin(), leaves.end(),
                     [](const HuffmanNode& a, const HuffmanNode& b) { return a.weight < b.weight; });
    return leaves;
}

std::size_t codeBytes(const std::vector<HuffmanNode>& leaves, const std::array<HuffmanCode, 256>& codes) {
    std::uint64_t bits = 0;
    for (const HuffmanNode& leaf : leaves) {
        const int length = codes[static_cast<std::size_t>(leaf.symbol)].length;
        bits += static_cast<std::uint64_t>(leaf.weight) * static_cast<std::uint64_t>(length);
    }
    return static_cast<std::size_t>((bits + 7) / 8);
}

void putCodes(ByteBuffer& out, const ByteBuffer& input, const std::array<HuffmanCode, 256>& codes) {
    std::uint64_t pending = 0;  // at most 7 bits left over and one code of at most 46
    int pendingBits = 0;
    for (const unsigned char byte : input) {
        const HuffmanCode& code = codes[byte];
        pending |= code.bits << pendingBits;
        pendingBits += code.length;
        for (; pendingBits >= 8; pendingBits -= 8, pending >>= 8) {
            out.push_back(static_cast<unsigned char>(pending & 0xFFu));
        }
    }
    if (pendingBits > 0) out.push_back(static_cast<unsigned char>(pending & 0xFFu));
}

/// Walks the tree bit by bit for `length` symbols or until the code stream ends. Two leaves or more.
ByteBuffer decodeSymbols(const HuffmanTree& tree, const ByteBuffer& block, std::size_t start,
                         std::size_t length) {
    const std::vector<HuffmanNode>& nodes = tree.nodes();
    const HuffmanNode* const root = &nodes.back();
    ByteBuffer output(std::min(length, (block.size() - start) * 8));  // a symbol takes one bit at least
    std::size_t decoded = 0;
    const HuffmanNode* node = root;
    for (std::size_t at = start; at < block.size(); ++at) {
        unsigned bits = block[at];
        for (int bit = 0; bit < 8; ++bit, bits >>= 1) {
            // A mask, because no processor can foresee a branch on packed bits.
            const std::int32_t toRight = -static_cast<std::int32_t>(bits & 1u);
            node = &nodes[static_cast<std::size_t>((node->right & toRight) | (node->left & ~toRight))];
            if (node->left >= 0) continue;
            if (decoded == output.size()) return output;
            output[decoded++] = static_cast<unsigned char>(node->symbol);
            node = root;
        }
    }
    output.resize(decoded);
    return output;
}

}  // namespace

ByteBuffer compress(const ByteBuffer& input) {
    if (input.size() > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max())) {
        throw std::length_error("a block holds at most 2147483647 bytes");
    }
    std::vector<HuffmanNode> leaves = countLeaves(input);
    const HuffmanTree tree(leaves);
    const std::array<HuffmanCode, 256> codes = tree.codes();
    ByteBuffer block;
    block.reserve(kHeaderSize + kLeafSize * leaves.size() + codeBytes(leaves, codes));
    put32(block, kMagic);
    put32(block, kVersion);
    put32(block, static_cast<std::uint32_t>(leaves.size()));
    put32(block, static_cast<std::uint32_t>(input.size()));
    for (const HuffmanNode& leaf : leaves) {
        block.push_back(static_cast<unsigned char>(leaf.symbol));
        put32(block, static_cast<std::uint32_t>(leaf.weight));
    }
    putCodes(block, input, codes);
    return block;
}

ByteBuffer decompress(const ByteBuffer& block) {
    Header header{};
    if (!readHeader(block, header)) return block;  // plain data passes through unchanged
    std::vector<HuffmanNode> leaves = readLeaves(block, header);
    if (leaves.empty() || header.length <= 0) return {};
    const auto length = static_cast<std::size_t>(header.length);
    if (leaves.size() == 1) return ByteBuffer(length, static_cast<unsigned char>(leaves.front().symbol));
    return decodeSymbols(HuffmanTree(std::move(leaves)), block, streamStart(header), length);
}

bool isCompressed(const ByteBuffer& buffer, bool strict) {
    Header header{};
    if (!readHeader(buffer, header)) return false;
    if (!strict) return true;
    if (buffer.size() < streamStart(header)) return false;
    const std::vector<HuffmanNode> leaves = readLeaves(buffer, header);
    return std::is_sorted(leaves.begin(), leaves.end(),
                          [](const HuffmanNode& a, const HuffmanNode& b) { return a.weight < b.weight; });
}

std::int32_t storedLength(const ByteBuffer& buffer) {
    Header header{};
    return readHeader(buffer, header) ? header.length : -1;
}

bool readFile(const std::string& path, ByteBuffer& buffer) {
    buffer.clear();
    std::ifstream file(path, std::ios::binary);
    if (!file.is_open()) return false;
    // Piece by piece: the size that a directory or a device claims is no reason to allocate it.
    std::array<char, 65536> piece{};
    do {
        file.read(piece.data(), static_cast<std::streamsize>(piece.size()));
        buffer.insert(buffer.end(), piece.data(), piece.data() + file.gcount());
    } while (file);
    if (!file.bad()) return true;
    buffer.clear();
    return false;
}

bool writeFile(const ByteBuffer& buffer, const std::string& path) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    if (!file.is_open()) return false;
    file.write(reinterpret_cast<const char*>(buffer.data()), static_cast<std::streamsize>(buffer.size()));
    file.close();
    return !file.fail();
}

}  // namespace qvo::util::BlockCompression
