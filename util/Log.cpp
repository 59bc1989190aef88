#include "util/Log.h"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace qvo::util {
namespace {

const char* levelWord(std::int32_t level) {
    static constexpr const char* kWords[] = {"CRITICAL): ", "ERROR): ", "WARNING): ", "NOTICE): "};
    return level >= Log::kCritical && level <= Log::kNotice ? kWords[level] : "";
}

std::string twoDigits(int number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

std::tm brokenDownUtc(std::time_t time) {
    const std::tm* const utc = std::gmtime(&time);
    return utc ? *utc : std::tm{};
}

}  // namespace

Log::Log(std::int32_t level) : level_(level) {
    try {
        depth_ = instance().depth_;
    } catch (...) {
        // No memory for the log itself: the lines of this channel will be dropped too.
    }
}

Log::Log(std::string_view text, std::int32_t level) : level_(level) {
    try {
        depth_ = ++instance().depth_;
        ownsSection_ = 1;
    } catch (...) {
        // As above; no section was opened, so none is closed.
    }
    writeLine(text, level);
}

Log::~Log() {
    if (ownsSection_ != 0) {
        try {
            --instance().depth_;
        } catch (...) {
            // The log was destroyed meanwhile and there is no memory for a fresh one: no depth to restore.
        }
    }
    closeFile();
}

std::int32_t Log::log(const std::string& text, std::int32_t level) {
    return write(text, level);
}

std::int32_t Log::write(const std::string& text, std::int32_t level) {
    writeLine(text, level);
    return 0;
}

void Log::writeLine(std::string_view text, std::int32_t level) noexcept {
    const std::int32_t effective = level < 0 ? level_ : level;
    if (!isEnabled(effective)) return;
    try {
        append(formatLine(std::time(nullptr), effective, depth_, text));
    } catch (...) {
        // Nowhere left to report to: the log itself is what failed.
    }
}

std::int32_t Log::threshold() noexcept {
    try {
        return instance().level_;
    } catch (...) {
        return std::numeric_limits<std::int32_t>::min();
    }
}

void Log::append(const std::string& text) {
    Log& target = instance();
    // One line that could not be stored must not silence those after it.
    target.buffer_.clear();
    target.buffer_ << text;
    if (!target.file_.is_open()) return;
    target.file_.clear();
    target.file_ << text << std::flush;  // survives a crash of the host
}

void Log::setFile(const std::string& path) {
    Log& target = instance();
    if (target.file_.is_open()) target.file_.close();
    target.file_.clear();
    target.file_.open(path, std::ios::binary | std::ios::trunc);  // a line ends in one character
}

bool Log::saveToFile(const std::string& path) {
    std::ofstream copy(path, std::ios::binary | std::ios::trunc);
    if (!copy.is_open()) return false;
    copy << contents();
    return true;
}

std::string Log::contents() {
    return instance().buffer_.str();
}

std::string Log::formatLine(std::time_t time, std::int32_t level, std::int32_t depth, std::string_view text) {
    const std::tm utc = brokenDownUtc(time);
    std::string line =
        std::to_string(utc.tm_year + 1900) + twoDigits(utc.tm_mon + 1) + twoDigits(utc.tm_mday);
    line += ' ' + twoDigits(utc.tm_hour) + ':' + twoDigits(utc.tm_min) + ':' + twoDigits(utc.tm_sec);
    line += " (";
    line += levelWord(level);
    line.append(static_cast<std::size_t>(std::max(depth + 1, 0)), '\t');
    line += text;
    line += '\n';
    return line;
}

void Log::closeFile() {
    if (!file_.is_open()) return;
    file_ << "[EOF]\n";
    file_.close();
}

}  // namespace qvo::util
