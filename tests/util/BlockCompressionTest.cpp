#include "util/BlockCompression.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "util/internal/HuffmanTree.h"

namespace qvo::util {
namespace {

using BlockCompression::compress;
using BlockCompression::decompress;
using BlockCompression::isCompressed;

using Leaf = std::pair<unsigned char, std::int32_t>;

void put32(ByteBuffer& out, std::int32_t number) {
    for (int shift = 0; shift < 32; shift += 8) {
        out.push_back(static_cast<unsigned char>(static_cast<std::uint32_t>(number) >> shift));
    }
}

ByteBuffer makeBlock(std::int32_t leafCount, std::int32_t length, const std::vector<Leaf>& leaves,
                     const ByteBuffer& stream, std::int32_t version = 100) {
    ByteBuffer block = {0xCA, 0x31, 0x53, 0x00};
    for (const std::int32_t number : {version, leafCount, length})
        put32(block, number);
    for (const auto& [symbol, weight] : leaves) {
        block.push_back(symbol);
        put32(block, weight);
    }
    block.insert(block.end(), stream.begin(), stream.end());
    return block;
}

/// The block of `input` by codes of characters that grow at their front, for leaves sorted by weight, higher
/// bytes first.
ByteBuffer naiveBlock(const ByteBuffer& input) {
    struct Group {
        std::int32_t weight;
        ByteBuffer symbols;
    };
    std::array<std::int32_t, 256> counts{};
    for (const unsigned char byte : input)
        ++counts[byte];
    std::vector<Group> queue;
    for (std::size_t symbol = 256; symbol-- > 0;)
        if (counts[symbol] > 0) queue.push_back({counts[symbol], {static_cast<unsigned char>(symbol)}});
    const auto lighter = [](const Group& a, const Group& b) { return a.weight < b.weight; };
    std::stable_sort(queue.begin(), queue.end(), lighter);
    std::vector<Leaf> leaves;
    for (const Group& group : queue)
        leaves.emplace_back(group.symbols[0], group.weight);
    std::array<std::string, 256> codes;
    while (queue.size() > 1) {
        Group joined{queue[0].weight + queue[1].weight, {}};
        for (const std::size_t side : {0, 1}) {
            for (const unsigned char symbol : queue[side].symbols) {
                codes[symbol].insert(0, 1, "01"[side]);
                joined.symbols.push_back(symbol);
            }
        }
        queue.erase(queue.begin(), queue.begin() + 2);
        queue.insert(std::upper_bound(queue.begin(), queue.end(), joined, lighter), joined);
    }
    std::string bits;
    for (const unsigned char byte : input)
        bits += codes[byte];
    ByteBuffer stream((bits.size() + 7) / 8);
    for (std::size_t i = 0; i < bits.size(); ++i) {
        if (bits[i] == '1') stream[i / 8] = static_cast<unsigned char>(stream[i / 8] | 1u << i % 8);
    }
    return makeBlock(static_cast<std::int32_t>(leaves.size()), static_cast<std::int32_t>(input.size()),
                     leaves, stream);
}

/// Between 1 and 256 distinct values, unevenly frequent.
ByteBuffer sample(std::size_t length) {
    ByteBuffer bytes(length);
    auto state = static_cast<std::uint32_t>(length);
    const std::uint32_t mask = 0xFFu >> length % 9;
    for (unsigned char& byte : bytes) {
        state = state * 1664525u + 1013904223u;
        byte = static_cast<unsigned char>((state >> 24) & (state >> 16) & mask);
    }
    return bytes;
}

TEST(BlockCompression, GoldenBytes) {
    // Written down by hand from the block's layout: header, leaf table, then the code bits from bit 0 up.
    const struct {
        const char* plain;
        ByteBuffer block;
    } kCases[] = {
        {"", {0xCA, 0x31, 0x53, 0, 100, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
        {"AAA", {0xCA, 0x31, 0x53, 0, 100, 0, 0, 0, 1, 0, 0, 0, 3, 0, 0, 0, 'A', 3, 0, 0, 0}},
        // B is left (0), A right (1): the first code bit lies in the lowest bit of the stream.
        {"ABA",
         {0xCA, 0x31, 0x53, 0, 100, 0, 0, 0, 2, 0, 0, 0, 3, 0, 0, 0, 'B', 1, 0, 0, 0, 'A', 2, 0, 0, 0, 0x05}},
    };
    for (const auto& c : kCases) {
        const std::string plain = c.plain;
        EXPECT_EQ(compress(ByteBuffer(plain.begin(), plain.end())), c.block) << plain;
        EXPECT_EQ(decompress(c.block), ByteBuffer(plain.begin(), plain.end())) << plain;
    }
}

TEST(BlockCompression, LengthsAgainstTheNaiveReference) {
    for (std::size_t length = 0; length <= 4096; length += length < 300 ? 1 : 73) {
        const ByteBuffer input = sample(length);
        const ByteBuffer block = compress(input);
        ASSERT_EQ(decompress(block), input) << length;
        ASSERT_TRUE(isCompressed(block, true)) << length;
        ASSERT_EQ(BlockCompression::storedLength(block), static_cast<std::int32_t>(length));
        ASSERT_EQ(block, naiveBlock(input)) << length;
    }
}

TEST(BlockCompression, EveryByteValueAndTheDeepestTree) {
    ByteBuffer fibonacci;  // makes the most lopsided tree there is
    std::size_t count = 1;
    std::size_t next = 1;
    for (unsigned char symbol = 0; symbol < 22; ++symbol) {
        fibonacci.insert(fibonacci.end(), count, symbol);
        count = std::exchange(next, count + next);
    }
    ByteBuffer all;
    for (unsigned i = 0; i < 1024; ++i)
        all.push_back(static_cast<unsigned char>(i * 7));
    for (const ByteBuffer& input : {fibonacci, all}) {
        EXPECT_EQ(compress(input), naiveBlock(input));
        EXPECT_EQ(decompress(compress(input)), input);
    }
}

TEST(BlockCompression, BlocksOfOthersAndHostileOnes) {
    constexpr std::int32_t kHuge = 0x7FFFFFFF;
    const std::vector<Leaf> two = {{'B', 1}, {'A', 2}};
    const std::vector<Leaf> falling = {{'B', 2}, {'A', 1}};
    std::vector<Leaf> heavy;
    for (int i = 0; i < 256; ++i)
        heavy.emplace_back(static_cast<unsigned char>(i), kHuge);
    std::vector<Leaf> negative = {{'B', -kHuge - 1}, {'A', -kHuge - 1}, {'C', -kHuge - 1}};
    const ByteBuffer truncated = {'A', 2, 0, 0};
    const struct {
        const char* name;
        ByteBuffer block;
        std::string plain;
        bool ordered;
    } kCases[] = {
        {"OtherSymbolOrder", makeBlock(2, 3, {{'A', 1}, {'B', 1}}, {0x05}), "BAB", true},
        {"FallingWeights", makeBlock(2, 3, falling, {0x05}), "ABA", false},
        {"OneLeafNeedsNoStream", makeBlock(1, 5, {{'x', 1}}, {}), "xxxxx", true},
        {"TruncatedTable", makeBlock(2, 3, {{'B', 1}}, truncated), "", false},
        {"NoTable", makeBlock(256, kHuge, {}, {}), "", false},
        {"NoStream", makeBlock(2, kHuge, two, {}), "", true},
        {"StreamEndsEarly", makeBlock(2, kHuge, two, {0x05}), "ABABBBBB", true},
        {"StreamEndsInsideACode", makeBlock(3, 100, {{'C', 1}, {'B', 1}, {'A', 1}}, {0xBF}), "BBBA", true},
        {"NegativeLength", makeBlock(2, -1, two, {0x05}), "", true},
        {"NegativeLengthOneLeaf", makeBlock(1, -kHuge - 1, {{'x', 1}}, {}), "", true},
        {"LengthWithoutLeaves", makeBlock(0, kHuge, {}, {0x05}), "", true},
        // Sums wrap around, so this table makes a chain: the last leaf is one step from the root.
        {"WeightsOverflow32Bits", makeBlock(256, 2, heavy, {0x80, 0x01, 0xFF}), "\xF8\xFF", true},
        {"NegativeWeights", makeBlock(3, 2, negative, {0x05}), "BB", true},
    };
    for (const auto& c : kCases) {
        const ByteBuffer plain = decompress(c.block);
        EXPECT_EQ(std::string(plain.begin(), plain.end()), c.plain) << c.name;
        EXPECT_LE(plain.capacity(), 8 * c.block.size()) << c.name;
        EXPECT_TRUE(isCompressed(c.block, false)) << c.name;
        EXPECT_EQ(isCompressed(c.block, true), c.ordered) << c.name;
    }
}

TEST(HuffmanTree, LinksAgreeWhateverTheOrderOfTheLeaves) {
    std::vector<HuffmanNode> leaves(7);
    const std::int32_t weights[] = {5, 1, -3, 9, 0, 0, 2};
    for (std::size_t i = 0; i < leaves.size(); ++i)
        leaves[i].weight = weights[i];
    const HuffmanTree tree(leaves);
    ASSERT_EQ(tree.nodes().size(), 13u);
    EXPECT_EQ(tree.nodes().back().weight, 14);
    for (int i = 0; i < 12; ++i) {
        const HuffmanNode& parent = tree.nodes().at(static_cast<std::size_t>(tree.nodes()[i].parent));
        EXPECT_TRUE(parent.left == i || parent.right == i) << i;
    }
}

TEST(BlockCompression, WhatIsNoBlockPassesThrough) {
    const ByteBuffer whole = makeBlock(0, 0, {}, {});
    const ByteBuffer cut(whole.begin(), whole.end() - 1);
    ByteBuffer otherMagic = whole;
    otherMagic[3] = 1;
    for (const ByteBuffer& plain : {ByteBuffer{}, cut, otherMagic, makeBlock(0, 0, {}, {}, 101),
                                    makeBlock(257, 1, {}, {}), makeBlock(-1, 1, {}, {})}) {
        EXPECT_FALSE(isCompressed(plain, false));
        EXPECT_EQ(decompress(plain), plain);
        EXPECT_EQ(BlockCompression::storedLength(plain), -1);
    }
}

TEST(BlockCompression, FileHelpers) {
    const std::string path = ::testing::TempDir() + "zk_block_file";
    ByteBuffer all;
    for (unsigned i = 0; i < 256; ++i)
        all.push_back(static_cast<unsigned char>(i));
    ByteBuffer read = {1, 2, 3};
    for (const ByteBuffer& bytes : {all, ByteBuffer{'\r', '\n', 0x1A}, ByteBuffer{}}) {
        ASSERT_TRUE(BlockCompression::writeFile(bytes, path));
        ASSERT_TRUE(BlockCompression::readFile(path, read));
        EXPECT_EQ(read, bytes);
    }
    std::remove(path.c_str());
    for (const std::string& bad : {path, ::testing::TempDir()}) {
        read = {1};
        EXPECT_FALSE(BlockCompression::readFile(bad, read)) << bad;
        EXPECT_TRUE(read.empty());
    }
    EXPECT_FALSE(BlockCompression::writeFile(all, ::testing::TempDir()));
}

}  // namespace
}  // namespace qvo::util
