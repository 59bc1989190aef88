// Base64 beside a plain table-driven reference; bytes per second count the binary side.

#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <string>

#include "util/Base64.h"

namespace {

using qvo::util::ByteBuffer;

constexpr char kAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

/// Codes whole groups two characters at a time from a table of 4096 pairs; the benchmark's length has no
/// rest.
std::string referenceEncode(const ByteBuffer& bytes) {
    static const auto kPairs = [] {
        std::array<std::array<char, 2>, 4096> pairs{};
        for (std::size_t i = 0; i < pairs.size(); ++i)
            pairs[i] = {kAlphabet[i >> 6], kAlphabet[i & 63]};
        return pairs;
    }();
    std::string text(bytes.size() / 3 * 4, '\0');
    char* out = text.data();
    for (std::size_t i = 0; i + 2 < bytes.size(); i += 3) {
        const unsigned group = static_cast<unsigned>(bytes[i]) << 16 | bytes[i + 1] << 8 | bytes[i + 2];
        for (const auto& pair : {kPairs[group >> 12], kPairs[group & 4095]}) {
            *out++ = pair[0];
            *out++ = pair[1];
        }
    }
    return text;
}

/// Decodes whole unpadded groups from four tables of shifted sextets; a set high bit marks a wrong character.
ByteBuffer referenceDecode(const std::string& text) {
    static const auto kShifted = [] {
        std::array<std::array<std::uint32_t, 256>, 4> tables{};
        for (auto& table : tables)
            table.fill(0x80000000u);
        for (std::uint32_t i = 0; i < 64; ++i) {
            for (std::size_t place = 0; place < 4; ++place) {
                tables[place][static_cast<unsigned char>(kAlphabet[i])] = i << (18 - 6 * place);
            }
        }
        return tables;
    }();
    ByteBuffer bytes(text.size() / 4 * 3);
    std::size_t out = 0;
    std::uint32_t wrong = 0;
    for (std::size_t i = 0; i + 3 < text.size(); i += 4) {
        std::uint32_t group = 0;
        for (std::size_t place = 0; place < 4; ++place) {
            group |= kShifted[place][static_cast<unsigned char>(text[i + place])];
        }
        wrong |= group;
        for (int shift = 16; shift >= 0; shift -= 8)
            bytes[out++] = static_cast<unsigned char>(group >> shift & 0xFFu);
    }
    return wrong & 0x80000000u ? ByteBuffer() : bytes;
}

ByteBuffer sample() {
    ByteBuffer bytes(3u << 18);
    std::uint32_t state = 1;
    for (unsigned char& byte : bytes)
        byte = static_cast<unsigned char>((state = state * 1664525u + 1013904223u) >> 24);
    return bytes;
}

template <std::string (*Encode)(const ByteBuffer&)>
void encodeBytes(benchmark::State& state) {
    const ByteBuffer bytes = sample();
    if (Encode(bytes) != referenceEncode(bytes)) state.SkipWithError("wrong text");
    for (auto _ : state)
        benchmark::DoNotOptimize(Encode(bytes));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}

template <ByteBuffer (*Decode)(const std::string&)>
void decodeText(benchmark::State& state) {
    const ByteBuffer bytes = sample();
    const std::string text = referenceEncode(bytes);
    if (Decode(text) != bytes) state.SkipWithError("wrong bytes");
    for (auto _ : state)
        benchmark::DoNotOptimize(Decode(text));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}

BENCHMARK(encodeBytes<qvo::util::Base64::encode>)->Name("Base64/encode");
BENCHMARK(encodeBytes<referenceEncode>)->Name("Base64/encode/table_reference");
BENCHMARK(decodeText<qvo::util::Base64::decode>)->Name("Base64/decode");
BENCHMARK(decodeText<referenceDecode>)->Name("Base64/decode/table_reference");

}  // namespace
