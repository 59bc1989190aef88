#pragma once

#include <iterator>
#include <vector>

namespace maxhost {

class Node;

/// The children of a node, in order, not owned. Appending, and inserting and taking out near either end, cost
/// amortised constant time; elsewhere pointers are moved up to the nearer end.
class ChildList {
  public:
    using Iterator = Node* const*;
    using ReverseIterator = std::reverse_iterator<Iterator>;

    int size() const { return static_cast<int>(nodes_.size() - first_); }
    bool empty() const { return size() == 0; }
    Node* operator[](int index) const { return nodes_[first_ + static_cast<size_t>(index)]; }
    Iterator begin() const { return nodes_.data() + first_; }
    Iterator end() const { return nodes_.data() + nodes_.size(); }
    ReverseIterator rbegin() const { return ReverseIterator(end()); }
    ReverseIterator rend() const { return ReverseIterator(begin()); }
    std::vector<Node*> copy() const { return std::vector<Node*>(begin(), end()); }

    void insert(int index, Node* node);
    void erase(int index);
    void clear();
    /// Searched outwards from `hint` and from both ends: found at once if few children before it have gone
    /// since it was last seen there, or if children are taken out in order from either end. `size()` when it
    /// is not there.
    int find(const Node* node, int hint) const;

  private:
    std::vector<Node*> nodes_;
    size_t first_ = 0;  ///< room at the front, left by those that were taken out
};

}  // namespace maxhost
