#pragma once

#include <cstddef>
#include <utility>

namespace qvo::zmx::adaptor::max {

template <typename T>
class LiveAnchor;

/// A pointer, not owning, that becomes null when its target dies. One pointer in size, because undo keeps
/// millions of them; constant cost.
template <typename T>
class LiveRef {
  public:
    LiveRef(const LiveRef& other) : block_(other.block_) { ++block_->users; }
    LiveRef& operator=(LiveRef other) {
        std::swap(block_, other.block_);
        return *this;
    }
    ~LiveRef() {
        if (--block_->users == 0) delete block_;
    }

    T* get() const { return block_->target; }

  private:
    friend class LiveAnchor<T>;

    struct Block {
        T* target;
        std::size_t users;
    };

    explicit LiveRef(T& target) : block_(new Block{&target, 1}) {}

    Block* block_;
};

/// Lives inside the target and tells the references when it dies.
template <typename T>
class LiveAnchor {
  public:
    explicit LiveAnchor(T& target) : ref_(target) {}
    ~LiveAnchor() { ref_.block_->target = nullptr; }
    LiveAnchor(const LiveAnchor&) = delete;
    LiveAnchor& operator=(const LiveAnchor&) = delete;

    const LiveRef<T>& ref() const { return ref_; }

  private:
    LiveRef<T> ref_;
};

}  // namespace qvo::zmx::adaptor::max
