#include "apps/headless/OutputFolder.h"

#include <random>
#include <stdexcept>
#include <vector>

namespace headless {

namespace fs = std::filesystem;

namespace {

/// `path`, or the nearest folder above it that is there. The folder itself may be on another disk than the
/// one above it.
fs::path nearestFolder(fs::path path) {
    while (!fs::exists(path) && path.has_relative_path())
        path = path.parent_path();
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
    const fs::file_status there = fs::symlink_status(target_);
    if (fs::exists(there) && !fs::is_directory(target_))
        throw std::runtime_error(path + ": is there already and is no folder");
    try {
        partial_ = makeHiddenFolder(nearestFolder(target_), target_.filename().string());
    } catch (const fs::filesystem_error& error) {
        throw std::runtime_error(path + ": cannot be written into: " + error.code().message());
    }
}

OutputFolder::~OutputFolder() {
    std::error_code ignored;  // a leftover is harmless, and a destructor has nobody to tell
    fs::remove_all(partial_, ignored);
}

void OutputFolder::complete() {
    std::vector<fs::path> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(partial_)) {
        names.push_back(entry.path().filename());
        const fs::path place = target_ / names.back();
        if (fs::is_directory(place))
            throw std::runtime_error(place.string() + ": is a folder, and a file shall take its place");
    }
    fs::create_directories(target_);
    for (const fs::path& name : names)
        fs::rename(partial_ / name, target_ / name);
}

}  // namespace headless
