#include "apps/headless/OutputFolder.h"

#include <random>
#include <stdexcept>

namespace headless {

namespace fs = std::filesystem;

namespace {

fs::path existingFolderAbove(fs::path path) {
    do {
        path = path.parent_path();
    } while (!fs::exists(path) && path.has_relative_path());
    return path;
}

/// A new folder with a name that nobody else has.
fs::path makeHiddenFolder(const fs::path& parent, const std::string& name) {
    std::random_device random;
    fs::path folder;
    do {
        folder = parent / ("." + name + ".partial-" + std::to_string(random()));
    } while (!fs::create_directory(folder));
    return folder;
}

}  // namespace

OutputFolder::OutputFolder(const std::string& path) : target_(fs::absolute(path).lexically_normal()) {
    if (!target_.has_filename()) target_ = target_.parent_path();
    if (fs::exists(target_) && !fs::is_directory(target_))
        throw std::runtime_error(path + ": is there already and is no folder");
    partial_ = makeHiddenFolder(existingFolderAbove(target_), target_.filename().string());
}

OutputFolder::~OutputFolder() {
    std::error_code ignored;  // a leftover is harmless, and a destructor has nobody to tell
    fs::remove_all(partial_, ignored);
}

void OutputFolder::complete() {
    fs::create_directories(target_);
    for (const fs::directory_entry& entry : fs::directory_iterator(partial_))
        fs::rename(entry.path(), target_ / entry.path().filename());
}

}  // namespace headless
