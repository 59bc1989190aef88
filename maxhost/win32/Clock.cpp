#include <windows.h>

#include <chrono>

#include "maxhost/win32/SessionState.h"

/// Milliseconds of a steady clock; wraps after 49.7 days as Windows' own does.
DWORD WINAPI GetTickCount() {
    const auto& fixed = maxhost::win32::SessionState::instance().tickCount;
    if (fixed) return *fixed;
    const auto sinceStart = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<DWORD>(std::chrono::duration_cast<std::chrono::milliseconds>(sinceStart).count());
}
