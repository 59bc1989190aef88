#include <io.h>

#include <stdexcept>

#include "apps/headless/platform/Platform.h"

namespace headless::platform {

void prepare(const std::string& registryFile) {
    if (!registryFile.empty())
        throw std::runtime_error("--registry: Windows has its own registry; import " + registryFile +
                                 " with its tools");
}

std::vector<std::string> messageBoxes() {
    return {};
}

bool hasTerminal() {
    constexpr int kStandardError = 2;
    return _isatty(kStandardError) != 0;
}

}  // namespace headless::platform
