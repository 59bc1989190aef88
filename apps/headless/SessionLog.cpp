#include "apps/headless/SessionLog.h"

#include <algorithm>
#include <filesystem>

#include "apps/headless/FileText.h"

namespace headless {

namespace {

std::string heading(const std::string& name) {
    return "==== " + name + " ====\n";
}

}  // namespace

void SessionLog::add(const std::string& line) {
    std::string flat = line;
    std::replace_if(
        flat.begin(), flat.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    lines_ += flat + '\n';
}

void SessionLog::write(const std::string& path, const std::vector<std::string>& logs) {
    std::string text;
    for (const std::string& log : logs) {
        if (!std::filesystem::exists(log)) {
            add(log + " was not written");
            continue;
        }
        text += heading(std::filesystem::path(log).filename().string()) + readText(log);
        if (text.back() != '\n') text += '\n';
        text += '\n';
    }
    writeText(path, text + heading("host") + lines_);
}

}  // namespace headless
