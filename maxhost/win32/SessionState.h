#pragma once
// Internal to the native Windows calls.

#include <deque>
#include <optional>
#include <ostream>
#include <vector>

#include "maxhost/win32/Win32Session.h"

namespace maxhost::win32 {

/// What a Win32Session shows and sets: message boxes and the clock.
struct SessionState {
    std::vector<ShownMessageBox> messageBoxes;
    std::deque<int> answers;
    std::ostream* printTo = nullptr;
    std::optional<DWORD> tickCount;

    /// Lives as long as the process, like everything that a library's last code may call.
    static SessionState& instance();
};

}  // namespace maxhost::win32
