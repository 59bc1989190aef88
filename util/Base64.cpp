#include "util/Base64.h"

#include <algorithm>
#include <array>

namespace qvo::util::Base64 {
namespace {

constexpr char kAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

constexpr std::array<signed char, 256> makePositions() {
    std::array<signed char, 256> positions{};
    for (auto& position : positions)
        position = -1;
    for (int i = 0; i < 64; ++i)
        positions[static_cast<unsigned char>(kAlphabet[i])] = static_cast<signed char>(i);
    return positions;
}

constexpr std::array<signed char, 256> kPositions = makePositions();

/// Writes the four characters of the `count` (1 to 3) bytes at `bytes`.
void putGroup(const unsigned char* bytes, std::size_t count, char* characters) {
    const unsigned b0 = bytes[0];
    const unsigned b1 = count > 1 ? bytes[1] : 0;
    const unsigned b2 = count > 2 ? bytes[2] : 0;
    characters[0] = kAlphabet[b0 >> 2];
    characters[1] = kAlphabet[(b0 & 3) << 4 | b1 >> 4];
    characters[2] = count > 1 ? kAlphabet[(b1 & 15) << 2 | b2 >> 6] : '=';
    characters[3] = count > 2 ? kAlphabet[b2 & 63] : '=';
}

/// Reads the four characters at `group` into the 3 bytes at `bytes`; how many count, or -1 on a wrong
/// character. A "=" counts as padding from the end only as far as the group says, so "xx=x" looks "=" up and
/// fails.
int takeGroup(const char* group, unsigned char* bytes) {
    const int count = 3 - (group[3] == '=' ? 1 : 0) - (group[2] == '=' ? 1 : 0);
    const int s0 = indexOf(group[0]);
    const int s1 = indexOf(group[1]);
    const int s2 = count > 1 ? indexOf(group[2]) : 0;
    const int s3 = count > 2 ? indexOf(group[3]) : 0;
    if ((s0 | s1 | s2 | s3) < 0) return -1;
    bytes[0] = static_cast<unsigned char>(s0 << 2 | s1 >> 4);
    bytes[1] = static_cast<unsigned char>((s1 & 15) << 4 | s2 >> 2);
    bytes[2] = static_cast<unsigned char>((s2 & 3) << 6 | s3);
    return count;
}

}  // namespace

std::string encode(const ByteBuffer& bytes) {
    std::string text((bytes.size() + 2) / 3 * 4, '\0');
    std::size_t out = 0;
    for (std::size_t offset = 0; offset < bytes.size(); offset += 3, out += 4) {
        putGroup(&bytes[offset], std::min<std::size_t>(3, bytes.size() - offset), &text[out]);
    }
    return text;
}

ByteBuffer decode(const std::string& text) {
    if (text.size() % 4 != 0) return {};
    ByteBuffer bytes(text.size() / 4 * 3);
    unsigned char* out = bytes.data();
    for (std::size_t offset = 0; offset < text.size(); offset += 4) {
        const int count = takeGroup(&text[offset], out);  // writes 3 bytes, for which every group has room
        if (count < 0) return {};
        out += count;
    }
    bytes.resize(static_cast<std::size_t>(out - bytes.data()));
    return bytes;
}

std::string encodeGroup(const ByteBuffer& bytes, std::size_t offset) {
    std::string group = "====";
    if (offset < bytes.size()) {
        putGroup(&bytes[offset], std::min<std::size_t>(3, bytes.size() - offset), &group[0]);
    }
    return group;
}

bool decodeGroup(const std::string& text, std::size_t offset, ByteBuffer& out) {
    if (offset > text.size() || text.size() - offset < 4) return false;
    std::array<unsigned char, 3> group{};
    const int count = takeGroup(&text[offset], group.data());
    if (count < 0) return false;
    out.insert(out.end(), group.begin(), group.begin() + count);
    return true;
}

int indexOf(char character) {
    return kPositions[static_cast<unsigned char>(character)];
}

}  // namespace qvo::util::Base64
