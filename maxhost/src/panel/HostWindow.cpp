#include "maxhost/src/panel/HostWindow.h"

namespace maxhost {

namespace {

constexpr int kWidth = 320;
constexpr int kHeight = 480;

}  // namespace

HostWindow::~HostWindow() {
    close();
}

HWND HostWindow::handle() {
    if (IsWindow(window) == FALSE) {
        window = CreateWindowExA(0, "STATIC", "Headless host", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 0, 0,
                                 kWidth, kHeight, nullptr, nullptr, nullptr, nullptr);
    }
    return window;
}

void HostWindow::show() {
    ShowWindow(handle(), SW_SHOW);
}

void HostWindow::close() {
    if (IsWindow(window) != FALSE) DestroyWindow(window);
    window = nullptr;
}

}  // namespace maxhost
