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
};

}  // namespace qvo::zmx::mocap
