#pragma once

#include <exception>

#include "util/Log.h"

namespace qvo::zmx::mocap {

/// Runs `body`. No exception may leave the core: one that would is logged at level 1 with the operation's
/// name, and false is returned.
template <class Body>
bool guarded(const char* operation, Body body) noexcept {
    try {
        body();
        return true;
    } catch (const std::exception& error) {
        util::logLine(util::Log::kError, "mocap core: ", operation, ": ", error.what());
    } catch (...) {
        util::logLine(util::Log::kError, "mocap core: ", operation, ": unknown exception");
    }
    return false;
}

}  // namespace qvo::zmx::mocap
