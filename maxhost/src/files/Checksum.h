#pragma once

#include <cstdint>

#include "maxhost/src/files/Bytes.h"

namespace maxhost {

/// CRC-32 (polynomial 0x04C11DB7, reflected, as in PNG files). One table step for each byte.
std::uint32_t crc32(ByteSpan bytes);

}  // namespace maxhost
