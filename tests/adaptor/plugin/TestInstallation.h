#pragma once

#include <filesystem>
#include <fstream>
#include <string>

#include "tests/support/Registry.h"

namespace qvo::zmx::test {

/// An installation of the product in a folder of its own, with one of the test cores as its core. Gone, with
/// its registry key, at the end of its life.
class TestInstallation {
  public:
    /// variant  file name of a test core; empty for an installation without one
    /// settings what the core reads, see TestCore.cpp
    explicit TestInstallation(const std::string& variant, const std::string& settings = std::string()) {
        namespace fs = std::filesystem;
        const fs::path coreFolder = root() / "kestrelstudio" / "data" / "core" / "win" / "x64";
        fs::remove_all(root());
        fs::create_directories(coreFolder);
        if (!variant.empty()) fs::copy_file(fs::path(TEST_CORE_FOLDER) / variant, coreFolder / "core.dll");
        std::ofstream(fs::path(TEST_CORE_FOLDER) / "settings.txt") << settings;
        takeJournal();
        registry.set("path", root().string());
    }
    ~TestInstallation() {
        std::error_code
            ignored;  // a core that is still loaded keeps its file; the next installation tries again
        std::filesystem::remove_all(root(), ignored);
    }

    /// What the core noted since the last call, one note after another with "; " between.
    static std::string takeJournal() {
        const std::filesystem::path path = std::filesystem::path(TEST_CORE_FOLDER) / "journal.txt";
        std::ifstream file(path);
        std::string line, journal;
        while (std::getline(file, line))
            journal += (journal.empty() ? "" : "; ") + line;
        file.close();
        std::filesystem::remove(path);
        return journal;
    }

    static std::filesystem::path root() { return std::filesystem::path(TEST_CORE_FOLDER) / "installation"; }

    ProductRegistry registry;
};

}  // namespace qvo::zmx::test
