#pragma once

#include <max.h>

#include <string>
#include <vector>

namespace maxhost {

/// One open plug-in library: it has the four exports and was built for this release of the host. Closing it
/// ends everything that came out of it, so no instance and no registration may be left by then.
class PluginLibrary {
  public:
    /// Opens the library and asks for its description and, once each, for its class descriptors.
    /// Errors    throws std::runtime_error "PATH: cause"; the library is closed again then.
    explicit PluginLibrary(const std::string& path);
    ~PluginLibrary();
    PluginLibrary(const PluginLibrary&) = delete;
    PluginLibrary& operator=(const PluginLibrary&) = delete;

    const std::string& path() const { return filePath; }
    const std::string& description() const { return text; }
    const std::vector<ClassDesc*>& classes() const { return descriptors; }

  private:
    void readExports();
    template <class Function>
    Function bind(const char* name) const;

    const std::string filePath;
    HMODULE module;
    std::string text;
    std::vector<ClassDesc*> descriptors;
};

}  // namespace maxhost
