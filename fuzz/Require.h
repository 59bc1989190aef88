#pragma once

#include <cstdio>
#include <cstdlib>

/// Stops the fuzzer with a finding unless `holds`.
inline void require(bool holds, const char* property) {
    if (holds) return;
    std::fprintf(stderr, "Property broken: %s\n", property);
    std::abort();
}
