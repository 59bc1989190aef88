#include <unistd.h>

#include <iostream>

#include "apps/headless/platform/Platform.h"
#include "maxhost/win32/Win32Session.h"

namespace headless::platform {

using maxhost::win32::Win32Session;

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
