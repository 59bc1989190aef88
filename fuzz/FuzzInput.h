#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

/// Takes an input apart from the front; at its end there are zeros.
class FuzzInput {
  public:
    FuzzInput(const std::uint8_t* data, std::size_t size) : data_(data), left_(size) {}

    bool empty() const { return left_ == 0; }

    int byte() {
        if (left_ == 0) return 0;
        --left_;
        return *data_++;
    }

    /// 0 to `count` - 1.
    int below(int count) { return byte() % count; }

    bool flag() { return (byte() & 1) != 0; }

    /// Up to 255 characters, without those that cannot stand in a host's text.
    std::string text() {
        std::string result;
        for (int length = byte(); length > 0 && left_ > 0; --length) {
            const char character = static_cast<char>(byte());
            if (character != '\0') result += character;
        }
        return result;
    }

  private:
    const std::uint8_t* data_;
    std::size_t left_;
};
