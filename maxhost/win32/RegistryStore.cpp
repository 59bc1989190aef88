#include "maxhost/win32/RegistryStore.h"

#include <cctype>
#include <utility>

namespace maxhost::win32 {

namespace {

std::string lowerCase(std::string text) {
    for (char& letter : text)
        letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    return text;
}

std::string keyPath(const std::string& path) {
    const std::size_t end = path.find_last_not_of('\\');
    return lowerCase(path.substr(0, end == std::string::npos ? 0 : end + 1));
}

}  // namespace

/// Lives as long as the process: a library's last code may still close its keys.
RegistryStore& RegistryStore::instance() {
    static RegistryStore& store = *new RegistryStore;
    return store;
}

void RegistryStore::set(const std::string& key, const std::string& name, RegistryValue value) {
    keys[keyPath(key)][lowerCase(name)] = std::move(value);
}

void RegistryStore::addKey(const std::string& key) {
    keys[keyPath(key)];
}

const RegistryValue* RegistryStore::find(const std::string& key, const std::string& name) const {
    const auto values = keys.find(keyPath(key));
    if (values == keys.end()) return nullptr;
    const auto value = values->second.find(lowerCase(name));
    return value == values->second.end() ? nullptr : &value->second;
}

bool RegistryStore::hasKey(const std::string& key) const {
    const std::string path = keyPath(key);
    if (keys.count(path) != 0) return true;
    const auto longer = keys.lower_bound(path + '\\');
    return longer != keys.end() && longer->first.compare(0, path.size() + 1, path + '\\') == 0;
}

HKEY RegistryStore::open(const std::string& key) {
    return *openKeys.insert(new HKEY__{keyPath(key)}).first;  // deleted by close
}

bool RegistryStore::close(HKEY key) {
    if (openKeys.erase(key) == 0) return false;
    delete key;
    return true;
}

std::string RegistryStore::pathOf(HKEY key) const {
    if (key == HKEY_LOCAL_MACHINE) return "hkey_local_machine";
    if (key == HKEY_CURRENT_USER) return "hkey_current_user";
    return openKeys.count(key) == 0 ? std::string() : key->path;
}

}  // namespace maxhost::win32
