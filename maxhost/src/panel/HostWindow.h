#pragma once

#include <coreexp.h>
#include <windows.h>

namespace maxhost {

/// The host's main window. Made when it is first asked for, so a session that shows nothing has none.
class CoreExport HostWindow {
  public:
    HostWindow() = default;
    ~HostWindow();
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;

    /// Null only if the system refuses to make a window. Made anew if the last one was destroyed from
    /// outside.
    HWND handle();

    void show();
    void close();

  private:
    HWND window = nullptr;
};

}  // namespace maxhost
