#pragma once

#include <string>

namespace headless {

/// The whole file. Throws std::runtime_error that names it when it cannot be read.
std::string readText(const std::string& path);

/// Replaces the file. Throws std::runtime_error that names it when it cannot be written whole.
void writeText(const std::string& path, const std::string& text);

}  // namespace headless
