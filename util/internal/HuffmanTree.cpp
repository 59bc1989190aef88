#include "util/internal/HuffmanTree.h"

#include <utility>

namespace qvo::util {
namespace {

/// Every reader must come to the same tree also from weights whose sum does not fit.
std::int32_t wrappingSum(std::int32_t a, std::int32_t b) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

}  // namespace

HuffmanTree::HuffmanTree(std::vector<HuffmanNode> leaves) : nodes_(std::move(leaves)) {
    nodes_.reserve(nodes_.size() * 2);
    for (std::size_t first = 0; first + 1 < nodes_.size(); first += 2)
        joinPair(first);
}

/// Joins the nodes at `first` and `first + 1` under a new inner node, put behind every node of equal weight.
void HuffmanTree::joinPair(std::size_t first) {
    HuffmanNode inner;
    inner.weight = wrappingSum(nodes_[first].weight, nodes_[first + 1].weight);
    inner.left = static_cast<std::int32_t>(first);
    inner.right = static_cast<std::int32_t>(first + 1);
    const std::size_t place = placeFor(inner.weight, first + 2);
    const auto placeIndex = static_cast<std::int32_t>(place);
    nodes_.insert(nodes_.begin() + static_cast<std::ptrdiff_t>(place), inner);
    for (std::size_t i = 0; i < first; ++i) {  // links to children point to before `first`, so they stay
        if (nodes_[i].parent >= placeIndex) ++nodes_[i].parent;
    }
    nodes_[first].parent = placeIndex;
    nodes_[first + 1].parent = placeIndex;
}

/// The first index from `from` on whose weight is greater than `weight`. Step by step, because a damaged
/// table need not be in order.
std::size_t HuffmanTree::placeFor(std::int32_t weight, std::size_t from) const {
    while (from < nodes_.size() && nodes_[from].weight <= weight)
        ++from;
    return from;
}

std::array<HuffmanCode, 256> HuffmanTree::codes() const {
    std::array<HuffmanCode, 256> codes{};
    std::vector<HuffmanCode> ways(nodes_.size());
    for (std::size_t i = nodes_.size(); i-- > 0;) {  // parents come after their children
        const HuffmanNode& node = nodes_[i];
        if (node.parent >= 0) {
            const auto parent = static_cast<std::size_t>(node.parent);
            const std::uint64_t bit = nodes_[parent].right == static_cast<std::int32_t>(i) ? 1 : 0;
            ways[i] = {ways[parent].bits | bit << ways[parent].length, ways[parent].length + 1};
        }
        if (node.symbol >= 0) codes[static_cast<std::size_t>(node.symbol)] = ways[i];
    }
    return codes;
}

}  // namespace qvo::util
