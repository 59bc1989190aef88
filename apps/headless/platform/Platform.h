#pragma once

#include <string>
#include <vector>

/// What differs between the native build and Windows; each has a source file of its own.
namespace headless::platform {

/// To be called once, before a plug-in is loaded. Natively it reads the registry export `registryFile`,
/// unless empty, and has message boxes printed on the standard error stream. On Windows the system has a
/// registry and shows message boxes. Throws std::runtime_error for a file that cannot be used.
void prepare(const std::string& registryFile);

/// Texts of the message boxes that were shown since prepare, as far as the platform remembers them.
std::vector<std::string> messageBoxes();

/// Whether the standard error stream is a terminal.
bool hasTerminal();

}  // namespace headless::platform
