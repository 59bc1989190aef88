#include "samples/mocap_core/FileError.h"

namespace qvo::zmx::mocap {

namespace {
constexpr std::size_t kLongestPath = 4096;
}

FileError::FileError(const std::string& file, std::size_t line, const std::string& cause)
    : std::runtime_error(printable(file, kLongestPath) + ":" + std::to_string(line) + ": " + cause) {}

std::string FileError::printable(const std::string& text, std::size_t limit) {
    std::string result = text.substr(0, limit);
    for (char& c : result) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte == 0x7f) c = '?';
    }
    if (text.size() > limit) result += "...";
    return result;
}

}  // namespace qvo::zmx::mocap
