#pragma once
// Internal to the native Windows calls.

#include <windows.h>

#include <map>
#include <set>
#include <string>

/// An open key.
struct HKEY__ {
    std::string path;  // lower case, from the root's name on
};

namespace maxhost::win32 {

struct RegistryValue {
    DWORD type = REG_NONE;
    std::string bytes;  // as RegQueryValueExA gives them: a text ends in its zero
};

/// The registry of this process: keys with named values. Names are compared without case. The view flags of
/// 32-bit and 64-bit programs are ignored; a program that wants the 32-bit view names "Wow6432Node".
class RegistryStore {
  public:
    static RegistryStore& instance();

    /// Stores a value, making its key. An empty name is the key's own value.
    void set(const std::string& key, const std::string& name, RegistryValue value);

    /// Makes a key without values.
    void addKey(const std::string& key);

    /// Null when there is no such key or value.
    const RegistryValue* find(const std::string& key, const std::string& name) const;

    /// True for keys that exist themselves or as part of a longer path.
    bool hasKey(const std::string& key) const;

    /// Drops all keys and values; open keys stay open and find nothing.
    void clear() { keys.clear(); }

    HKEY open(const std::string& key);
    bool close(HKEY key);

    /// The path that an open key or one of the two roots stands for; empty for anything else.
    std::string pathOf(HKEY key) const;

  private:
    std::map<std::string, std::map<std::string, RegistryValue>> keys;  // all names in lower case
    std::set<HKEY> openKeys;
};

}  // namespace maxhost::win32
