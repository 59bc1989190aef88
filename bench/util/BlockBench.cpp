// Block compression beside zlib limited to Huffman coding; bytes per second count the unpacked side.

#include <benchmark/benchmark.h>
#include <zlib.h>

#include <cstdint>
#include <string>

#include "util/BlockCompression.h"

namespace {

using qvo::util::ByteBuffer;
namespace BlockCompression = qvo::util::BlockCompression;

/// A core's state as it is packed into node tags: XML with many numbers.
ByteBuffer sample() {
    std::string text = "<ZMK_Plugin>";
    std::uint32_t state = 1;
    while (text.size() < (1u << 20)) {
        state = state * 1664525u + 1013904223u;
        text += "<key frame=\"" + std::to_string(state >> 20) + "\">" +
                std::to_string(state % 100000u * 1e-3) + "</key>";
    }
    return ByteBuffer(text.begin(), text.end());
}

ByteBuffer zlibCompress(const ByteBuffer& plain) {
    z_stream stream{};
    if (deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, MAX_WBITS, MAX_MEM_LEVEL, Z_HUFFMAN_ONLY) !=
        Z_OK) {
        return {};
    }
    ByteBuffer packed(deflateBound(&stream, plain.size()));
    stream.next_in = const_cast<Bytef*>(plain.data());
    stream.avail_in = static_cast<uInt>(plain.size());
    stream.next_out = packed.data();
    stream.avail_out = static_cast<uInt>(packed.size());
    const int result = deflate(&stream, Z_FINISH);
    packed.resize(stream.total_out);
    deflateEnd(&stream);
    return result == Z_STREAM_END ? packed : ByteBuffer();
}

ByteBuffer zlibDecompress(const ByteBuffer& packed, std::size_t plainSize) {
    ByteBuffer plain(plainSize);
    uLongf size = plain.size();
    if (uncompress(plain.data(), &size, packed.data(), packed.size()) != Z_OK) return {};
    plain.resize(size);
    return plain;
}

ByteBuffer blockDecompress(const ByteBuffer& packed, std::size_t /*plainSize*/) {
    return BlockCompression::decompress(packed);
}

template <ByteBuffer (*Compress)(const ByteBuffer&)>
void compressState(benchmark::State& state) {
    const ByteBuffer plain = sample();
    for (auto _ : state)
        benchmark::DoNotOptimize(Compress(plain));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(plain.size()));
    state.counters["ratio"] = static_cast<double>(Compress(plain).size()) / static_cast<double>(plain.size());
}

template <ByteBuffer (*Compress)(const ByteBuffer&), ByteBuffer (*Decompress)(const ByteBuffer&, std::size_t)>
void decompressState(benchmark::State& state) {
    const ByteBuffer plain = sample();
    const ByteBuffer packed = Compress(plain);
    if (Decompress(packed, plain.size()) != plain) state.SkipWithError("wrong bytes");
    for (auto _ : state)
        benchmark::DoNotOptimize(Decompress(packed, plain.size()));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(plain.size()));
}

BENCHMARK(compressState<BlockCompression::compress>)->Name("Block/compress");
BENCHMARK(compressState<zlibCompress>)->Name("Block/compress/zlib_huffman_only");
BENCHMARK(decompressState<BlockCompression::compress, blockDecompress>)->Name("Block/decompress");
BENCHMARK(decompressState<zlibCompress, zlibDecompress>)->Name("Block/decompress/zlib_huffman_only");

}  // namespace
