#pragma once

#include <string>
#include <vector>

namespace headless {

/// The session's log: first the logs that the plug-in and the core wrote, each under a heading with its file
/// name, then what the host has to say, one line an event.
class SessionLog {
  public:
    /// Line ends in `line` become blanks.
    void add(const std::string& line);
    /// Logs that were not written are left out with a line that says so. Throws std::runtime_error.
    void write(const std::string& path, const std::vector<std::string>& logs);

  private:
    std::string lines_;
};

}  // namespace headless
