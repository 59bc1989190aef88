#include "maxhost/src/files/Checksum.h"

#include <array>

namespace maxhost {

namespace {

std::array<std::uint32_t, 256> makeTable() {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t i = 0; i < 256; ++i) {
        std::uint32_t value = i;
        for (int bit = 0; bit < 8; ++bit)
            value = (value >> 1) ^ ((value & 1) != 0 ? 0xEDB88320u : 0u);
        table[i] = value;
    }
    return table;
}

}  // namespace

std::uint32_t crc32(ByteSpan bytes) {
    static const std::array<std::uint32_t, 256> table = makeTable();
    std::uint32_t crc = 0xffffffffu;
    for (size_t i = 0; i < bytes.size; ++i)
        crc = (crc >> 8) ^ table[(crc ^ bytes.data[i]) & 0xffu];
    return ~crc;
}

}  // namespace maxhost
