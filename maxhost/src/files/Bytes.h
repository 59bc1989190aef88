#pragma once

#include <cstddef>
#include <vector>

namespace maxhost {

using Bytes = std::vector<unsigned char>;

/// A part of a buffer that somebody else owns.
struct ByteSpan {
    const unsigned char* data = nullptr;
    size_t size = 0;
};

}  // namespace maxhost
