#include "maxhost/src/plugins/PluginLoader.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <stdexcept>

namespace maxhost {

namespace {

bool isPluginFile(const std::filesystem::directory_entry& entry) {
    std::error_code failed;
    if (!entry.is_regular_file(failed)) return false;
    std::string extension = entry.path().extension().string();
    for (char& letter : extension)
        letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    return extension == ".gup";
}

}  // namespace

PluginLoader::PluginLoader(ClassDirectory& directory) : classes(directory) {}

PluginLoader::~PluginLoader() {
    freeAll();
}

const PluginLibrary* PluginLoader::load(const std::string& path) {
    try {
        loaded.push_back(std::make_unique<PluginLibrary>(path));
    } catch (const std::runtime_error& error) {
        failures.push_back(error.what());
        return nullptr;
    }
    registerClasses(*loaded.back());
    return loaded.back().get();
}

void PluginLoader::registerClasses(const PluginLibrary& library) {
    for (ClassDesc* const descriptor : library.classes()) {
        if (classes.add(descriptor)) continue;
        failures.push_back(library.path() + ": class \"" + descriptor->ClassName() +
                           "\" has the ids of a class that is already there");
    }
}

std::size_t PluginLoader::loadFolder(const std::string& folder) {
    // Joined as text: on Windows a path gives a folder back in other bytes than those that the system takes.
    const std::string prefix = folder + static_cast<char>(std::filesystem::path::preferred_separator);
    std::vector<std::string> files;
    std::error_code failed;
    for (const auto& entry : std::filesystem::directory_iterator(folder, failed)) {
        if (isPluginFile(entry)) files.push_back(prefix + entry.path().filename().string());
    }
    if (failed) failures.push_back(folder + ": " + failed.message());
    std::sort(files.begin(), files.end());
    const auto isLoaded = [this](const std::string& file) { return load(file) != nullptr; };
    return static_cast<std::size_t>(std::count_if(files.begin(), files.end(), isLoaded));
}

void PluginLoader::freeAll() {
    while (!loaded.empty()) {
        for (ClassDesc* const descriptor : loaded.back()->classes())
            classes.remove(descriptor);
        loaded.pop_back();
    }
}

}  // namespace maxhost
