#include "samples/mocap_core/FilePath.h"

namespace qvo::zmx::mocap::path {

namespace {

constexpr char kSeparators[] = "/\\";

/// Where the file name starts.
std::size_t nameStart(const std::string& path) {
    const std::size_t separator = path.find_last_of(kSeparators);
    return separator == std::string::npos ? 0 : separator + 1;
}

bool isLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool isAbsolute(const std::string& path) {
    if (path.find_first_of(kSeparators) == 0) return true;
    return path.size() >= 2 && isLetter(path[0]) && path[1] == ':';
}

}  // namespace

std::string stem(const std::string& path) {
    const std::string name = path.substr(nameStart(path));
    const std::size_t dot = name.rfind('.');
    return dot == std::string::npos || dot == 0 ? name : name.substr(0, dot);
}

std::string beside(const std::string& file, const std::string& path) {
    return isAbsolute(path) ? path : file.substr(0, nameStart(file)) + path;
}

}  // namespace qvo::zmx::mocap::path
