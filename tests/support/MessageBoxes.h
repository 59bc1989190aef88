#pragma once

#include <windows.h>

#include <string>
#include <vector>

#ifndef _WIN32
#include "maxhost/win32/Win32Session.h"
#endif

namespace qvo::zmx::test {

/// The message boxes shown during its life, each answered with its first button at once. One at a time.
class MessageBoxes {
  public:
    MessageBoxes(const MessageBoxes&) = delete;
    MessageBoxes& operator=(const MessageBoxes&) = delete;

#ifdef _WIN32
    MessageBoxes() {
        shown().clear();
        hook_ = SetWindowsHookExA(WH_CBT, watch, nullptr, GetCurrentThreadId());
    }
    ~MessageBoxes() {
        UnhookWindowsHookEx(hook_);
    }

    /// "CAPTION: TEXT" each.
    std::vector<std::string> take() {
        return std::move(shown());
    }

  private:
    static std::vector<std::string>& shown() {
        static std::vector<std::string> boxes;
        return boxes;
    }

    static LRESULT CALLBACK watch(int code, WPARAM window, LPARAM details) {
        constexpr int kTextOfMessageBox = 0xffff;
        char name[64] = {};
        const HWND box = reinterpret_cast<HWND>(window);
        if (code == HCBT_ACTIVATE) GetClassNameA(box, name, sizeof name);
        if (std::string(name) == "#32770") {
            static char text[1 << 16];
            GetWindowTextA(box, text, sizeof text);
            shown().push_back(text);
            GetDlgItemTextA(box, kTextOfMessageBox, text, sizeof text);
            shown().back().append(": ").append(text);
            PostMessageA(box, WM_COMMAND, IDOK, 0);
        }
        return CallNextHookEx(nullptr, code, window, details);
    }

    HHOOK hook_;
#else
    MessageBoxes() : seen_(maxhost::win32::Win32Session::messageBoxes().size()) {}

    std::vector<std::string> take() {
        std::vector<std::string> taken;
        const auto& all = maxhost::win32::Win32Session::messageBoxes();
        for (; seen_ < all.size(); ++seen_)
            taken.push_back(all[seen_].caption + ": " + all[seen_].text);
        return taken;
    }

  private:
    std::size_t seen_;
#endif
};

}  // namespace qvo::zmx::test
