#pragma once

#include <stdexcept>

namespace headless {

/// The user has had enough: the session ends where it is, and cleans up.
class Interrupted : public std::runtime_error {
  public:
    explicit Interrupted(int number) : std::runtime_error("interrupted"), signal(number) {}

    const int signal;
};

}  // namespace headless
