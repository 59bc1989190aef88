#include "apps/headless/FileText.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace headless {

std::string readText(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(file), {}};
    if (!file.is_open() || file.bad()) throw std::runtime_error(path + ": cannot be read");
    return text;
}

void writeText(const std::string& path, const std::string& text) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(text.data(), static_cast<std::streamsize>(text.size()));
    file.close();
    if (!file) throw std::runtime_error(path + ": cannot be written");
}

}  // namespace headless
