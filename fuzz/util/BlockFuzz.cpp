// Properties: any bytes survive compress and decompress; no block unpacks to more than its header and its
// code stream justify; what is no block passes through.

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "fuzz/Require.h"
#include "util/BlockCompression.h"

using qvo::util::ByteBuffer;
namespace BlockCompression = qvo::util::BlockCompression;

namespace {

constexpr std::int32_t kLongestRepeat = 1 << 20;  // a single leaf may rightly ask for 2 GB; not while fuzzing

void checkRoundTrip(const ByteBuffer& bytes) {
    const ByteBuffer block = BlockCompression::compress(bytes);
    require(BlockCompression::isCompressed(block, true), "a packed block is well ordered");
    require(BlockCompression::storedLength(block) == static_cast<std::int32_t>(bytes.size()),
            "stored length");
    require(BlockCompression::decompress(block) == bytes, "decompress(compress(x)) == x");
}

void checkForeignBlock(const ByteBuffer& block) {
    if (!BlockCompression::isCompressed(block, false)) {
        require(BlockCompression::decompress(block) == block, "what is no block passes through");
        return;
    }
    const std::int32_t length = BlockCompression::storedLength(block);
    const bool singleLeaf = block[8] == 1 && block[9] == 0;
    if (singleLeaf && length > kLongestRepeat) return;
    const ByteBuffer plain = BlockCompression::decompress(block);
    require(plain.size() <= static_cast<std::size_t>(std::max(length, 0)), "no more than the header says");
    require(singleLeaf || plain.capacity() <= 8 * block.size(), "no more than the stream justifies");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ByteBuffer bytes(data, data + size);
    checkRoundTrip(bytes);
    checkForeignBlock(bytes);
    // The same bytes behind a valid magic and version, so that the fuzzer need not find those.
    ByteBuffer block = {0xCA, 0x31, 0x53, 0x00, 100, 0, 0, 0};
    block.insert(block.end(), bytes.begin(), bytes.end());
    checkForeignBlock(block);
    return 0;
}
