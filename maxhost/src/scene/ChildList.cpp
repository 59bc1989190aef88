#include "maxhost/src/scene/ChildList.h"

#include <algorithm>

namespace maxhost {

void ChildList::insert(int index, Node* node) {
    const auto at = nodes_.begin() + static_cast<std::ptrdiff_t>(first_) + index;
    if (first_ == 0 || index > size() / 2) {
        nodes_.insert(at, node);
        return;
    }
    const auto front = nodes_.begin() + static_cast<std::ptrdiff_t>(first_);
    std::move(front, at, front - 1);
    --first_;
    nodes_[first_ + static_cast<size_t>(index)] = node;
}

void ChildList::erase(int index) {
    const auto at = nodes_.begin() + static_cast<std::ptrdiff_t>(first_) + index;
    if (index > size() / 2) {
        nodes_.erase(at);
        return;
    }
    std::move_backward(nodes_.begin() + static_cast<std::ptrdiff_t>(first_), at, at + 1);
    ++first_;
    if (first_ <= nodes_.size() / 2) return;
    nodes_.erase(nodes_.begin(), nodes_.begin() + static_cast<std::ptrdiff_t>(first_));
    first_ = 0;
}

void ChildList::clear() {
    nodes_.clear();
    first_ = 0;
}

int ChildList::find(const Node* node, int hint) const {
    const int count = size();
    const int last = std::clamp(hint, 0, std::max(0, count - 1));
    for (int distance = 0; distance < count; ++distance) {
        for (const int index : {last - distance, last + distance, distance, count - 1 - distance})
            if (index >= 0 && index < count && (*this)[index] == node) return index;
    }
    return count;
}

}  // namespace maxhost
