#pragma once
// Internal to the native Windows calls.

#include <windows.h>

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

/// A window: a dialog if it has a procedure, else a control or a plain frame. Nothing is drawn.
struct HWND__ {
    HWND parent = nullptr;
    std::vector<HWND> children;  // in the order of their making
    std::string className;       // upper case
    std::string text;
    DWORD style = 0;
    RECT box = {0, 0, 0, 0};  // pixels, relative to the parent
    LONG_PTR id = 0;
    HINSTANCE module = nullptr;
    DLGPROC procedure = nullptr;
    LONG_PTR userData = 0;
    LONG_PTR dialogData = 0;
    LONG_PTR messageResult = 0;
    bool closing = false;
};

namespace maxhost::win32 {

/// Owns every window of the process.
class WindowTable {
  public:
    static WindowTable& instance();

    /// Makes an empty window below `parent`, which may be null.
    HWND create(HWND parent);

    bool contains(HWND window) const { return windows.count(window) != 0; }

    /// Tells the window and then its children, the dialogs among them by WM_DESTROY, and drops them.
    void destroy(HWND window);

    /// Drops all windows without telling any.
    void dropAll() { windows.clear(); }

    std::size_t count() const { return windows.size(); }

  private:
    std::unordered_map<HWND, std::unique_ptr<HWND__>> windows;
};

}  // namespace maxhost::win32
