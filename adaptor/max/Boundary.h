#pragma once

#include <exception>
#include <utility>

#include "util/Log.h"

/// No exception crosses the boundary with the core, in either direction. Every operation that the core calls
/// and that can throw, and every call into the core, runs inside one of these guards: it catches everything
/// (a failed allocation and a sink of the core that throws included), logs the operation at level 1 and
/// answers with the failure value.
namespace qvo::zmx::adaptor::max {

/// Logs the exception being handled; call it from a catch block only.
inline void logBoundaryFault(const char* operation) noexcept {
    try {
        throw;
    } catch (const std::exception& fault) {
        util::logLine(util::Log::kError, "Exception in ", operation, ": ", fault.what());
    } catch (...) {
        util::logLine(util::Log::kError, "Exception in ", operation);
    }
}

/// Runs `body`; its result, or `failure` when it throws.
template <class Result, class Body>
Result guarded(const char* operation, Result failure, Body&& body) noexcept {
    try {
        return std::forward<Body>(body)();
    } catch (...) {
        logBoundaryFault(operation);
        return failure;
    }
}

/// The same for operations without a result.
template <class Body>
void guarded(const char* operation, Body&& body) noexcept {
    try {
        std::forward<Body>(body)();
    } catch (...) {
        logBoundaryFault(operation);
    }
}

}  // namespace qvo::zmx::adaptor::max
