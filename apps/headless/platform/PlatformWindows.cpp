#include <windows.h>

#include <io.h>

#include <csignal>
#include <cstdio>
#include <stdexcept>

#include "apps/headless/platform/Platform.h"

namespace headless::platform {

namespace {

constexpr int kTextOfMessageBox = 0xffff;

std::vector<std::string> shownBoxes;
volatile std::sig_atomic_t interruptedBy = 0;

/// Windows has set the default again when it calls this.
void keepInterrupt(int number) {
    interruptedBy = number;
}

std::string textOf(HWND window) {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)) + 1, '\0');
    text.resize(static_cast<std::size_t>(GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

/// Nobody sits at the screen: a message box is noted and answered as soon as it is there.
LRESULT CALLBACK answerMessageBox(int code, WPARAM window, LPARAM details) {
    char kind[16] = {};
    const HWND box = reinterpret_cast<HWND>(window);
    if (code == HCBT_ACTIVATE) GetClassNameA(box, kind, sizeof kind);
    const HWND text = std::string(kind) == "#32770" ? GetDlgItem(box, kTextOfMessageBox) : nullptr;
    if (text != nullptr) {
        shownBoxes.push_back(textOf(box) + ": " + textOf(text));
        std::fprintf(stderr, "%s\n", shownBoxes.back().c_str());
        PostMessageA(box, WM_COMMAND, IDOK, 0);
    }
    return CallNextHookEx(nullptr, code, window, details);
}

}  // namespace

void keepInterrupts() {
    for (const int number : {SIGINT, SIGTERM, SIGBREAK})
        std::signal(number, keepInterrupt);
}

int interrupt() {
    return interruptedBy;
}

void prepare(const std::string& registryFile) {
    if (!registryFile.empty())
        throw std::runtime_error("--registry: Windows has its own registry; import " + registryFile +
                                 " with its tools");
    if (SetWindowsHookExA(WH_CBT, answerMessageBox, nullptr, GetCurrentThreadId()) == nullptr)
        throw std::runtime_error("message boxes cannot be answered: Windows error " +
                                 std::to_string(GetLastError()));
}

std::vector<std::string> messageBoxes() {
    return shownBoxes;
}

bool hasTerminal() {
    constexpr int kStandardError = 2;
    return _isatty(kStandardError) != 0;
}

}  // namespace headless::platform
