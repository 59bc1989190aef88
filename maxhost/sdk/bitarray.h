#pragma once

#include <vector>

#include <windows.h>

/// A set of small numbers. Simplified: only what a key selection needs. Indices out of range are ignored or
/// absent.
class BitArray {
  public:
    BitArray() = default;
    explicit BitArray(int size) { SetSize(size); }

    int GetSize() const { return static_cast<int>(bits_.size()); }
    void SetSize(int size, int save = 0) {
        if (!save) bits_.clear();
        bits_.resize(size < 0 ? 0 : static_cast<size_t>(size), false);
    }
    void ClearAll() { bits_.assign(bits_.size(), false); }
    void SetAll() { bits_.assign(bits_.size(), true); }
    void Set(int i, int on = 1) {
        if (has(i)) bits_[static_cast<size_t>(i)] = on != 0;
    }
    void Clear(int i) { Set(i, 0); }
    int operator[](int i) const { return has(i) && bits_[static_cast<size_t>(i)] ? 1 : 0; }
    int NumberSet() const {
        int count = 0;
        for (const bool bit : bits_)
            count += bit ? 1 : 0;
        return count;
    }

  private:
    bool has(int i) const { return i >= 0 && i < GetSize(); }

    std::vector<bool> bits_;
};
