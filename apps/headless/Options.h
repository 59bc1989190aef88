#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace headless {

/// A command line that cannot be followed; what() is one line.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// What one session is given, and where it leaves its results.
struct Options {
    std::string plugins;            // folder of the plug-in libraries
    std::string registry;           // registry export to read first; empty: the registry as it is
    std::string report;             // where the core writes its one-line result
    std::vector<std::string> logs;  // logs that the plug-in and the core write, kept with the results
    std::string out = "out";        // folder of the results

    /// Throws UsageError.
    static Options parse(int count, char** arguments);
    static const char* usage();
};

}  // namespace headless
