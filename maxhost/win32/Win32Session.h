#pragma once
// The far side of the native Windows calls, for the program and tests that run a host: what Windows' own
// tools and its user would do. Native builds only.

#include <windows.h>

#include <iosfwd>
#include <string>
#include <vector>

namespace maxhost::win32 {

struct ShownMessageBox {
    HWND owner = nullptr;
    std::string text;
    std::string caption;
    UINT type = MB_OK;
    int answer = IDOK;
};

#pragma GCC visibility push(default)

/// All state of the Windows calls belongs to the process, so there is one session and all operations are
/// static.
class Win32Session {
  public:
    /// Reads a registry export (the text form) into the registry.
    /// Errors    throws std::runtime_error with "FILE:LINE: cause", or "FILE: cause" when it cannot be
    /// opened.
    static void loadRegistryFile(const std::string& path);

    /// Stores a text value. `key` starts with HKEY_LOCAL_MACHINE or HKEY_CURRENT_USER.
    static void setRegistryValue(const std::string& key, const std::string& name, const std::string& text);

    static void clearRegistry();

    /// Every message box shown since the last reset, in order.
    static const std::vector<ShownMessageBox>& messageBoxes();

    /// The button that the next unanswered message box returns. Without one it returns its first button.
    static void answerNextMessageBox(int button);

    /// Prints each message box as it is shown, one block of lines each; null prints none (the start).
    /// The stream must outlive the session or the next call.
    static void printMessageBoxesTo(std::ostream* stream);

    /// Fixes what GetTickCount returns, in milliseconds, until the next reset.
    static void setTickCount(DWORD milliseconds);

    /// Number of windows, controls included, that exist now.
    static std::size_t windowCount();

    /// Back to the start of the process: registry, message boxes, clock and library search folder. Windows
    /// that are left are dropped without a message. Loaded libraries stay: their code may still be needed.
    static void reset();
};

#pragma GCC visibility pop

}  // namespace maxhost::win32
