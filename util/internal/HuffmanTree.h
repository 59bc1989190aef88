#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace qvo::util {

/// One node of a Huffman code tree. Links are indices into the tree's node list, -1 for none.
struct HuffmanNode {
    std::int32_t left = -1;
    std::int32_t right = -1;
    std::int32_t parent = -1;
    std::int32_t weight = 0;   ///< occurrences; the sums of a table that lies wrap around
    std::int32_t symbol = -1;  ///< 0..255 for a leaf, -1 for an inner node
};

/// The way from the root to a leaf: bit 0 first, 1 means right.
struct HuffmanCode {
    std::uint64_t bits = 0;
    int length = 0;
};

/// The code tree over a list of leaves. Reader and writer of a block build it from the same stored list, so
/// its shape depends on the order of the list and on nothing else. At most 256 leaves.
class HuffmanTree {
  public:
    /// Leaves in table order: weights not falling, unless the table is damaged (the tree is sound all the
    /// same).
    explicit HuffmanTree(std::vector<HuffmanNode> leaves);

    /// Children before parents, the root last; empty without leaves.
    const std::vector<HuffmanNode>& nodes() const { return nodes_; }

    /// Code of every byte value, empty for those without a leaf and for a single leaf. Meaningful only if the
    /// weights are counts with a sum below 2^31: no code is then longer than 46 bits.
    std::array<HuffmanCode, 256> codes() const;

  private:
    void joinPair(std::size_t first);
    std::size_t placeFor(std::int32_t weight, std::size_t from) const;

    std::vector<HuffmanNode> nodes_;
};

}  // namespace qvo::util
