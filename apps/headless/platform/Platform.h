#pragma once

#include <string>
#include <vector>

/// What differs between the native build and Windows; each has a source file of its own.
namespace headless::platform {

/// To be called once, before a plug-in is loaded. Message boxes are printed on the standard error stream and
/// answered with their first button from then on, since nobody is there to do it. Natively the registry
/// export `registryFile` is read, unless empty; Windows has a registry of its own and takes none. Throws
/// std::runtime_error for a file that cannot be used.
void prepare(const std::string& registryFile);

/// From now on a signal that asks the process to end is kept, to be asked for; the same signal a second time
/// ends it as usual.
void keepInterrupts();

/// The number of the signal that has asked the process to end; 0 for none.
int interrupt();

/// "CAPTION: TEXT" of the message boxes that were shown since prepare.
std::vector<std::string> messageBoxes();

/// Whether the standard error stream is a terminal.
bool hasTerminal();

}  // namespace headless::platform
