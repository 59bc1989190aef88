#include "maxhost/win32/NativePath.h"

#include <algorithm>
#include <filesystem>

namespace maxhost::win32 {

std::string nativePath(const std::string& windowsPath) {
    std::string path = windowsPath;
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

std::string fileName(const std::string& path) {
    return path.substr(path.find_last_of('/') + 1);  // npos + 1 is the start
}

std::string programPath() {
    std::error_code failed;
    return std::filesystem::read_symlink("/proc/self/exe", failed).string();
}

std::string programFolder() {
    return std::filesystem::path(programPath()).parent_path().string();
}

}  // namespace maxhost::win32
