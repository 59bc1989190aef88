#pragma once

#include <memory>
#include <string>
#include <vector>

#include "maxhost/src/plugins/ClassDirectory.h"
#include "maxhost/src/plugins/PluginLibrary.h"

namespace maxhost {

/// Loads plug-in libraries and registers their classes. A library that cannot be used leaves one line in
/// messages() and nothing else.
class CoreExport PluginLoader {
  public:
    /// directory must outlive the loader.
    explicit PluginLoader(ClassDirectory& directory);
    ~PluginLoader();

    /// Null on failure. The library stays open until freeAll; the pointer is good that long.
    const PluginLibrary* load(const std::string& path);

    /// Loads every file of the folder that ends in ".gup", in the order of their names. Returns how many
    /// there are now from it.
    std::size_t loadFolder(const std::string& folder);

    /// Takes the classes out of the directory and closes the libraries, the last one first. Nothing that came
    /// out of them may be in use any more.
    void freeAll();

    const std::vector<std::unique_ptr<PluginLibrary>>& libraries() const { return loaded; }

    /// What went wrong so far: "FILE: cause".
    const std::vector<std::string>& messages() const { return failures; }

  private:
    void registerClasses(const PluginLibrary& library);

    ClassDirectory& classes;
    std::vector<std::unique_ptr<PluginLibrary>> loaded;
    std::vector<std::string> failures;
};

}  // namespace maxhost
