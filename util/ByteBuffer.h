#pragma once

#include <vector>

namespace qvo::util {

using ByteBuffer = std::vector<unsigned char>;

}  // namespace qvo::util
