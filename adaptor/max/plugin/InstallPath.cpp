#include "adaptor/max/plugin/InstallPath.h"

#include <algorithm>
#include <array>
#include <optional>

#include "adaptor/max/Host.h"

namespace qvo::zmx::adaptor::max {

namespace {

/// The product is registered by a 32-bit installer; the 64-bit host sees that part of the registry under this
/// name.
constexpr char kProductKey[] = "SOFTWARE\\Wow6432Node\\Zorva Animations";
constexpr char kShellFoldersKey[] = "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";

/// A string value of the registry; nothing when it is absent, no text or longer than the buffer of 1024
/// bytes.
std::optional<std::string> registryText(HKEY hive, const char* keyPath, const char* valueName) {
    HKEY key = nullptr;
    if (RegOpenKeyExA(hive, keyPath, 0, KEY_READ, &key) != ERROR_SUCCESS) return std::nullopt;

    std::array<char, 1024> buffer{};
    DWORD size = static_cast<DWORD>(buffer.size());
    DWORD type = REG_NONE;
    const LSTATUS result =
        RegQueryValueExA(key, valueName, nullptr, &type, reinterpret_cast<LPBYTE>(buffer.data()), &size);
    RegCloseKey(key);
    if (result != ERROR_SUCCESS || type != REG_SZ) return std::nullopt;

    // A value may be stored without its final zero.
    const auto end = buffer.begin() + std::min<std::size_t>(size, buffer.size());
    return std::string(buffer.begin(), std::find(buffer.begin(), end, '\0'));
}

}  // namespace

std::string installPath(const std::string& key) {
    struct Folder {
        const char* key;
        const char* below;
    };
    constexpr Folder kFolders[] = {
        {"data", "/kestrelstudio/data"}, {"plugin", "/kestrelstudio/plugins/win/x64"},
        {"doc", "/kestrelstudio/doc"},   {"prm", "/kestrelstudio/prm"},
        {"", "/kestrelstudio"},          {"zmx", "/kestrelstudio"},
    };

    const std::optional<std::string> path = registryText(HKEY_LOCAL_MACHINE, kProductKey, "path");
    if (!path) return {};
    for (const Folder& folder : kFolders)
        if (key == folder.key) return *path + folder.below;
    return *path;
}

std::string coreFolder() {
    std::string folder = installPath("") + "\\data\\core\\win\\x64";
    std::replace(folder.begin(), folder.end(), '/', '\\');
    return folder;
}

std::string documentsFolder() {
    const std::optional<std::string> documents =
        registryText(HKEY_CURRENT_USER, kShellFoldersKey, "Personal");
    return documents ? *documents + "\\Zorva Animations\\kestrelstudio" : std::string();
}

std::string logMirrorFile() {
    return registryText(HKEY_LOCAL_MACHINE, kProductKey, "log").value_or(std::string());
}

}  // namespace qvo::zmx::adaptor::max
