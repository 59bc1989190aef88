#include "util/Base64.h"

#include <gtest/gtest.h>

#include <string>

namespace qvo::util {
namespace {

ByteBuffer bytesOf(const std::string& text) {
    return ByteBuffer(text.begin(), text.end());
}

/// By bits: six at a time, a missing bit zero, a group without any bit "=".
std::string naiveEncode(const ByteBuffer& bytes) {
    static const std::string kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    const std::size_t bits = bytes.size() * 8;
    std::string text;
    for (std::size_t at = 0; at < (bytes.size() + 2) / 3 * 24; at += 6) {
        unsigned sextet = 0;
        for (std::size_t bit = at; bit < at + 6; ++bit) {
            sextet = sextet * 2 + (bit < bits ? bytes[bit / 8] >> (7 - bit % 8) & 1u : 0u);
        }
        text += at < bits ? kAlphabet[sextet] : '=';
    }
    return text;
}

TEST(Base64, KnownVectors) {
    const struct {
        std::string plain;
        const char* coded;
    } kCases[] = {
        {"", ""},
        {"f", "Zg=="},
        {"fo", "Zm8="},
        {"foo", "Zm9v"},
        {"foob", "Zm9vYg=="},
        {"fooba", "Zm9vYmE="},
        {"foobar", "Zm9vYmFy"},
        {std::string(1, '\0'), "AA=="},
        {"\xFB\xFF\xFE", "+//+"},
    };
    for (const auto& c : kCases) {
        EXPECT_EQ(Base64::encode(bytesOf(c.plain)), c.coded);
        EXPECT_EQ(Base64::decode(c.coded), bytesOf(c.plain));
    }
}

TEST(Base64, EveryLengthAgainstTheNaiveReference) {
    ByteBuffer bytes;
    for (unsigned length = 0; length <= 512; ++length) {
        const std::string text = Base64::encode(bytes);
        ASSERT_EQ(text, naiveEncode(bytes)) << length;
        ASSERT_EQ(Base64::decode(text), bytes) << length;
        bytes.push_back(static_cast<unsigned char>(length * 151 + length / 256));
    }
}

TEST(Base64, WrongTextDecodesToNothing) {
    for (const char* text : {"A", "AA", "AAA", "AAAAA", "AA=A", "A===", "====", "=AAA", "AA==A===", "AAAA\n",
                             "AA\nA", "AAAA AAA", "AA-A", "AA_A", "AAA\x80"}) {
        EXPECT_TRUE(Base64::decode(text).empty()) << text;
    }
}

TEST(Base64, AnyGroupMayBePaddedAndSpareBitsAreIgnored) {
    EXPECT_EQ(Base64::decode("QQ==QUI=QUJD"), bytesOf("AABABC"));
    EXPECT_EQ(Base64::decode("QR=="), bytesOf("A"));
}

TEST(Base64, GroupsKnowTheEnd) {
    EXPECT_EQ(Base64::encodeGroup(bytesOf("ABCD"), 3), "RA==");
    EXPECT_EQ(Base64::encodeGroup(bytesOf("ABCD"), 4), "====");
    ByteBuffer out = bytesOf("x");
    EXPECT_TRUE(Base64::decodeGroup("QUJDRA==", 4, out));
    EXPECT_FALSE(Base64::decodeGroup("QUJDRA==", 5, out));
    EXPECT_FALSE(Base64::decodeGroup("QUJ?", 0, out));
    EXPECT_EQ(out, bytesOf("xD"));
}

}  // namespace
}  // namespace qvo::util
