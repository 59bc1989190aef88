#include "maxhost/src/files/FileBytes.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <stdexcept>

namespace maxhost {

namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

[[noreturn]] void fail(const std::string& path, const char* what) {
    throw std::runtime_error(path + ": " + what + ": " + std::strerror(errno));
}

void writeNew(const std::string& path, const std::string& shownPath, const Bytes& bytes) {
    File file(std::fopen(path.c_str(), "wb"));
    if (file == nullptr) fail(shownPath, "cannot be written");
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
    // Closing may be what finds the disk full.
    if (!written || std::fclose(file.release()) != 0) fail(shownPath, "cannot be written");
}

}  // namespace

Bytes readFileBytes(const std::string& path) {
    // Block by block: what a special file says of its size means nothing.
    constexpr size_t kBlock = 1 << 20;
    const File file(std::fopen(path.c_str(), "rb"));
    if (file == nullptr) fail(path, "cannot be opened");
    Bytes bytes;
    for (size_t read = kBlock; read == kBlock;) {
        const size_t before = bytes.size();
        bytes.resize(before + kBlock);
        read = std::fread(bytes.data() + before, 1, kBlock, file.get());
        bytes.resize(before + read);
    }
    if (std::ferror(file.get()) != 0) fail(path, "cannot be read");
    return bytes;
}

void replaceFileBytes(const std::string& path, const Bytes& bytes) {
    const std::string temporary = path + ".tmp";
    try {
        writeNew(temporary, path, bytes);
        std::error_code error;
        std::filesystem::rename(temporary, path, error);
        if (error) throw std::runtime_error(path + ": cannot be replaced: " + error.message());
    } catch (...) {
        std::error_code ignored;  // there may be no such file, and the cause is on its way already
        std::filesystem::remove(temporary, ignored);
        throw;
    }
}

}  // namespace maxhost
