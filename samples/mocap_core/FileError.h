#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace qvo::zmx::mocap {

/// A file that cannot be used: a clip, or the settings. what() is one line, "FILE:LINE: cause"; lines count
/// from 1, and line 0 stands for the file as a whole (it cannot be opened).
class FileError : public std::runtime_error {
  public:
    FileError(const std::string& file, std::size_t line, const std::string& cause);

    /// `text` fit for a one-line message: control characters become '?', what exceeds `limit` bytes is
    /// replaced by "...".
    static std::string printable(const std::string& text, std::size_t limit = 60);

    /// Runs `step`, which concerns `file` as a whole: a failure that names no file gets this one in front.
    template <class Step>
    static auto concerning(const std::string& file, Step step) {
        try {
            return step();
        } catch (const FileError&) {
            throw;
        } catch (const std::runtime_error& error) {
            throw FileError(file, 0, error.what());
        }
    }
};

}  // namespace qvo::zmx::mocap
