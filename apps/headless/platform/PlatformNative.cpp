#include <signal.h>
#include <unistd.h>

#include <iostream>

#include "apps/headless/platform/Platform.h"
#include "maxhost/win32/Win32Session.h"

namespace headless::platform {

using maxhost::win32::Win32Session;

namespace {

volatile sig_atomic_t interruptedBy = 0;

void keepInterrupt(int number) {
    interruptedBy = number;
}

}  // namespace

void keepInterrupts() {
    struct sigaction action {};
    action.sa_handler = keepInterrupt;
    action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    for (const int number : {SIGINT, SIGTERM, SIGHUP})
        sigaction(number, &action, nullptr);
}

int interrupt() {
    return interruptedBy;
}

void prepare(const std::string& registryFile) {
    Win32Session::printMessageBoxesTo(&std::cerr);
    if (!registryFile.empty()) Win32Session::loadRegistryFile(registryFile);
}

std::vector<std::string> messageBoxes() {
    std::vector<std::string> texts;
    for (const auto& box : Win32Session::messageBoxes())
        texts.push_back(box.caption + ": " + box.text);
    return texts;
}

bool hasTerminal() {
    return isatty(STDERR_FILENO) != 0;
}

}  // namespace headless::platform
