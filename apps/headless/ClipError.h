#pragma once

#include <stdexcept>

namespace headless {

/// The core refused the clip; what() is its own line, "FILE:LINE: cause".
class ClipError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace headless
