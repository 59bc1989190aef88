#include "maxhost/src/plugins/PluginLibrary.h"

#include <stdexcept>

namespace maxhost {

namespace {

using LibDescriptionFunction = const TCHAR* (*)();
using LibNumberClassesFunction = int (*)();
using LibClassDescFunction = ClassDesc* (*)(int);
using LibVersionFunction = ULONG (*)();

std::string systemText(DWORD error) {
    char buffer[1024] = "";
    FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0, buffer,
                   sizeof buffer, nullptr);
    std::string text = buffer;
    text.erase(text.find_last_not_of(" .\r\n") + 1);
    return text.empty() ? "error " + std::to_string(error) : text;
}

/// The release in a version word; interface number and revision below it may differ.
ULONG releaseOf(ULONG version) {
    return version >> 16;
}

}  // namespace

PluginLibrary::PluginLibrary(const std::string& path) : filePath(path), module(LoadLibraryA(path.c_str())) {
    if (module == nullptr) throw std::runtime_error(path + ": " + systemText(GetLastError()));
    try {
        readExports();
    } catch (...) {
        FreeLibrary(module);
        throw;
    }
}

PluginLibrary::~PluginLibrary() {
    FreeLibrary(module);
}

/// The version comes first: of a library for another release nothing else can be trusted.
void PluginLibrary::readExports() {
    const auto version = bind<LibVersionFunction>("LibVersion");
    const auto description = bind<LibDescriptionFunction>("LibDescription");
    const auto numberOfClasses = bind<LibNumberClassesFunction>("LibNumberClasses");
    const auto classDescriptor = bind<LibClassDescFunction>("LibClassDesc");
    const ULONG release = releaseOf(version());
    if (release != MAX_RELEASE) {
        throw std::runtime_error(filePath + ": built for release " + std::to_string(release) +
                                 " of the host, this is release " + std::to_string(MAX_RELEASE));
    }
    const TCHAR* const words = description();
    text = words == nullptr ? "" : words;
    const int count = numberOfClasses();
    for (int i = 0; i < count; ++i) {
        ClassDesc* const descriptor = classDescriptor(i);
        if (descriptor == nullptr)
            throw std::runtime_error(filePath + ": no descriptor for class " + std::to_string(i));
        descriptors.push_back(descriptor);
    }
}

template <class Function>
Function PluginLibrary::bind(const char* name) const {
    const FARPROC address = GetProcAddress(module, name);
    if (address == nullptr) throw std::runtime_error(filePath + ": does not export " + name);
    return reinterpret_cast<Function>(reinterpret_cast<void (*)()>(address));
}

}  // namespace maxhost
