#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace scenario {

/// A session of the program `headless` with the built plug-in and core, in a folder of its own whose name has
/// every sign that is easily quoted wrongly. The folder is removed at the end.
class HeadlessRun {
  public:
    HeadlessRun();
    ~HeadlessRun();
    HeadlessRun(const HeadlessRun&) = delete;
    HeadlessRun& operator=(const HeadlessRun&) = delete;

    const std::filesystem::path& folder() const { return folder_; }
    std::filesystem::path out() const { return folder_ / "out"; }
    std::filesystem::path installation() const { return folder_ / "installation"; }

    /// Lays out an installation for the clip, with more elements for the core's settings. False when that
    /// fails.
    bool install(const std::filesystem::path& clip, const std::vector<std::string>& settings = {}) const;
    /// Plays a session; its results go to out().
    /// returns  the program's exit status; -1 when it ended by a signal
    int play();

    /// What the program wrote to each stream in its last session.
    const std::string& standardOutput() const { return standardOutput_; }
    const std::string& standardError() const { return standardError_; }

    static std::string readFile(const std::filesystem::path& path);
    static void writeFile(const std::filesystem::path& path, const std::string& text);

  private:
    int run(const std::vector<std::string>& command) const;

    std::filesystem::path folder_;
    std::string standardOutput_, standardError_;
};

}  // namespace scenario
