// Properties: any bytes survive encode and decode; any text that decodes has a canonical form that decodes
// alike.

#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzz/Require.h"
#include "util/Base64.h"

using qvo::util::ByteBuffer;
namespace Base64 = qvo::util::Base64;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ByteBuffer bytes(data, data + size);
    const std::string text = Base64::encode(bytes);
    require(text.size() == (size + 2) / 3 * 4, "encoded length");
    require(Base64::decode(text) == bytes, "decode(encode(x)) == x");

    const std::string foreign(reinterpret_cast<const char*>(data), size);
    const ByteBuffer decoded = Base64::decode(foreign);
    require(decoded.size() <= size / 4 * 3, "decoded length");
    require(Base64::decode(Base64::encode(decoded)) == decoded, "decoded bytes survive");

    ByteBuffer byGroups;
    bool valid = size % 4 == 0;
    for (std::size_t offset = 0; valid && offset < size; offset += 4) {
        valid = Base64::decodeGroup(foreign, offset, byGroups);
    }
    require(decoded == (valid ? byGroups : ByteBuffer()), "decode is its groups, or nothing");
    return 0;
}
