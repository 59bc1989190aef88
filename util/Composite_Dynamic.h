#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace qvo::util {

/// Tree node whose children are of type `T`, which derives from Composite_Dynamic<T>.
/// Links only, no ownership: whoever made the nodes destroys them, and takes a node that dies alone out of
/// its tree first (detach(), and its children theirs).
template <class T>
class Composite_Dynamic {
  public:
    Composite_Dynamic() = default;
    Composite_Dynamic(const Composite_Dynamic&) = delete;
    Composite_Dynamic& operator=(const Composite_Dynamic&) = delete;

    /// For the derived type's own use; the tree never calls it.
    virtual void operate() = 0;  // slot 0

    // Hooks, empty unless overridden; called around attaching and detaching.
    virtual void beforeAttach() {}                              // slot 1, on the child
    virtual void afterAttach() {}                               // slot 2, on the child
    virtual void beforeDetach() {}                              // slot 3, on the child
    virtual void afterDetach() {}                               // slot 4, on the child
    virtual void childAttached(T* /*child*/, int /*index*/) {}  // slot 5, on the parent
    virtual void childDetached(T* /*child*/, int /*index*/) {}  // slot 6, on the parent
    virtual ~Composite_Dynamic() = default;                     // slot 7

    /// Puts `child` under this node at `index` (negative or too large: at the end), taking it from its
    /// present parent first; within one parent the index counts the places before the move. Nothing happens
    /// for null, this node itself, or one of its ancestors.
    void addChild(T* child, int index = -1) {
        if (!child || isSelfOrAncestor(child)) return;
        const int count = childCount();
        int place = index < 0 ? count : std::min(index, count);
        if (child->parent_ == this && indexOf(child) < place) --place;  // its removal moves the later ones up
        child->detach();
        attachAt(child, place);
    }

    /// Takes this node out of its parent's children; nothing happens at top level.
    void detach() {
        if (!parent_) return;
        T* const self = static_cast<T*>(this);
        T* const former = parent_;
        const int place = former->indexOf(self);
        beforeDetach();
        former->children_.erase(former->children_.begin() + place);
        parent_ = nullptr;
        afterDetach();
        former->childDetached(self, place);
    }

    int childCount() const { return static_cast<int>(children_.size()); }

    const std::vector<T*>& getChildren() const { return children_; }

    /// Null for a top-level node.
    T* getParent() const { return parent_; }

  private:
    void attachAt(T* child, int place) {
        child->beforeAttach();
        children_.insert(children_.begin() + place, child);
        child->parent_ = static_cast<T*>(this);
        child->afterAttach();
        childAttached(child, place);
    }

    bool isSelfOrAncestor(const T* node) const {
        if (static_cast<const Composite_Dynamic*>(node) == this) return true;
        if (node->children_.empty()) return false;  // keeps building a deep chain linear
        for (const T* above = parent_; above; above = above->parent_) {
            if (above == node) return true;
        }
        return false;
    }

    int indexOf(const T* child) const {
        return static_cast<int>(std::find(children_.begin(), children_.end(), child) - children_.begin());
    }

    std::vector<T*> children_;
    T* parent_ = nullptr;
};

}  // namespace qvo::util
