#include "samples/mocap_core/FileText.h"

#include <fstream>
#include <vector>

#include "samples/mocap_core/FileError.h"

namespace qvo::zmx::mocap {

std::string readFileText(const std::string& path, const std::string& what) {
    std::ifstream stream(path, std::ios::binary);
    if (!stream) throw FileError(path, 0, what + " cannot be opened");
    std::string text;
    std::vector<char> block(std::size_t{1} << 16);
    do {
        stream.read(block.data(), static_cast<std::streamsize>(block.size()));
        text.append(block.data(), static_cast<std::size_t>(stream.gcount()));
    } while (stream);
    if (stream.bad()) throw FileError(path, 0, what + " cannot be read");
    return text;
}

std::string_view withoutByteOrderMark(std::string_view text) {
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    if (text.substr(0, kMark.size()) == kMark) text.remove_prefix(kMark.size());
    return text;
}

}  // namespace qvo::zmx::mocap
