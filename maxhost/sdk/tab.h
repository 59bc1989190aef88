#pragma once

#include <cstring>
#include <type_traits>

#include "maxheap.h"

/// Growable array on the host's heap. Elements are moved and copied as bytes and no constructor ever runs, so
/// only plain types fit. New elements of `SetCount` are undefined. Appending costs amortised constant time.
template <class T>
class Tab : public MaxHeapOperators {
  public:
    Tab() = default;
    Tab(const Tab& other) { Append(other.count_, other.items_); }
    ~Tab() { MAX_free(items_); }
    Tab& operator=(const Tab& other) {
        if (this != &other) {
            ZeroCount();
            Append(other.count_, other.items_);
        }
        return *this;
    }

    int Count() const { return count_; }
    T* Addr(int at) const { return items_ + at; }
    T& operator[](int at) const { return items_[at]; }

    /// Adds `num` elements, keeping room for `extra` more. Returns the index of the first one.
    int Append(int num, T* el, int extra = 0) { return Insert(count_, num, el, extra); }
    /// Inserts before `at` (clamped into the array). Returns the index used.
    int Insert(int at, int num, T* el) { return Insert(at, num, el, 0); }
    /// Removes up to `num` elements from `start` on. Returns the new count.
    int Delete(int start, int num) {
        if (start < 0 || start >= count_ || num <= 0) return count_;
        if (num > count_ - start) num = count_ - start;
        move(start, start + num, count_ - start - num);
        count_ -= num;
        return count_;
    }

    /// With `resize` the memory fits the new count exactly, otherwise it only grows.
    void SetCount(int count, BOOL resize = TRUE) {
        if (count < 0) count = 0;
        if (resize || count > room_) setRoom(count);
        count_ = count;
    }
    void ZeroCount() { count_ = 0; }
    /// Sets the room to `num` elements; elements beyond it are dropped. Returns nonzero when done.
    int Resize(int num) {
        setRoom(num < 0 ? 0 : num);
        if (count_ > room_) count_ = room_;
        return 1;
    }
    void Shrink() { Resize(count_); }

  private:
    int Insert(int at, int num, const T* el, int extra) {
        if (at < 0) at = 0;
        if (at > count_) at = count_;
        if (num <= 0) return at;
        if (num > room_ - count_) setRoom(grownRoom(num + extra));
        move(at + num, at, count_ - at);
        std::memcpy(static_cast<void*>(items_ + at), el, sizeof(T) * static_cast<size_t>(num));
        count_ += num;
        return at;
    }
    int grownRoom(int more) const {
        const int doubled = room_ + room_ / 2 + 4;
        return count_ + more > doubled ? count_ + more : doubled;
    }
    void move(int to, int from, int num) {
        if (num > 0)
            std::memmove(static_cast<void*>(items_ + to), items_ + from,
                         sizeof(T) * static_cast<size_t>(num));
    }
    void setRoom(int room) {
        static_assert(std::is_trivially_destructible<T>::value, "a Tab runs no constructors or destructors");
        if (room == room_) return;
        if (room == 0) {
            MAX_free(items_);
            items_ = nullptr;
        } else {
            void* grown = MAX_realloc(static_cast<void*>(items_), sizeof(T) * static_cast<size_t>(room));
            if (grown == nullptr) throw std::bad_alloc();
            items_ = static_cast<T*>(grown);
        }
        room_ = room;
    }

    T* items_ = nullptr;
    int count_ = 0;
    int room_ = 0;
};
