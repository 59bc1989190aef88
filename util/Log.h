#pragma once

#include <cstdint>
#include <ctime>
#include <fstream>
#include <locale>
#include <sstream>
#include <string>
#include <string_view>

#include "util/Singleton.h"

namespace qvo::util {

/// The diagnostic log: levelled, time-stamped, indented lines, kept in memory for the life of the process and
/// mirrored to a file once one is set.
///
/// One instance (the accessor's) holds buffer, file, threshold and current section depth. Objects on the
/// stack are channels, `Log(level)`, or sections, `Log(text, level)`, which indent all lines begun during
/// their life by one more tab; both write through the instance. Use logLine() and logValue() below to write:
/// they test the threshold before they format.
///
/// A line for which there is no memory is dropped: no channel, section or line throws because of it, so that
/// a catch block can log. What a caller puts together itself, to pass it on as one text, may.
class Log : public Singleton<Log> {
  public:
    static constexpr std::int32_t kOwnLevel = -1;  ///< any negative level: the level given at construction
    static constexpr std::int32_t kCritical = 0;
    static constexpr std::int32_t kError = 1;
    static constexpr std::int32_t kWarning = 2;
    static constexpr std::int32_t kNotice = 3;  ///< also the threshold; it never changes

    /// A channel: lines at the depth of the section open now, also after that section has ended.
    explicit Log(std::int32_t level);

    /// A section: opens one more level of indentation and writes `text` as its header, already indented.
    Log(std::string_view text, std::int32_t level);

    /// Closes the section.
    ~Log() override;  // slot 1; slot 0 is release()

    virtual std::int32_t log(const std::string& text, std::int32_t level);  // slot 2; same as write
    /// Writes one line unless `level` is above the threshold. Always 0.
    virtual std::int32_t write(const std::string& text, std::int32_t level);  // slot 3

    /// The highest level that is written; below every level while there is no memory for the log.
    static std::int32_t threshold() noexcept;

    /// True if this object would write a line at `level`.
    bool isEnabled(std::int32_t level) const { return (level < 0 ? level_ : level) <= threshold(); }

    /// Adds `text` as it stands to buffer and mirror file.
    static void append(const std::string& text);

    /// Mirrors all later lines into `path` (truncated). If it cannot be opened the log stays in memory only.
    static void setFile(const std::string& path);

    /// Writes everything logged so far to `path`; false if it cannot be opened.
    static bool saveToFile(const std::string& path);

    /// Everything logged so far.
    static std::string contents();

    /// One finished line: UTC date and time, level word (none above 3), depth + 1 tabs (never fewer than 0),
    /// text. The "(" before the word is closed inside the word, so a level above 3 leaves it open.
    static std::string formatLine(std::time_t time, std::int32_t level, std::int32_t depth,
                                  std::string_view text);

  private:
    friend class Singleton<Log>;

    Log() = default;  ///< the instance: no section, depth -1, threshold kNotice

    void writeLine(std::string_view text, std::int32_t level) noexcept;
    void closeFile();

    std::ofstream file_;
    std::stringstream buffer_;
    std::uint32_t ownsSection_ = 0;  ///< 1 if this object opened a section
    std::int32_t depth_ = -1;  ///< depth of this object's lines; the instance's: of the innermost section
    std::int32_t level_ = kNotice;  ///< default level of this object's lines; the instance's: the threshold
};

/// Writes the parts, put one after another with <<, as one line at `level` (Log::kOwnLevel for the channel's
/// own). Below the threshold nothing is formatted. Numbers never follow the user's locale. Example:
/// logLine(log, Log::kWarning, "Node '", name, "' is gone");
template <class... Parts>
void logLine(Log& log, std::int32_t level, const Parts&... parts) noexcept {
    if (!log.isEnabled(level)) return;
    try {
        std::ostringstream text;
        text.imbue(std::locale::classic());
        (text << ... << parts);
        log.write(text.str(), level);
    } catch (...) {
        // Nowhere left to report to: the log itself is what failed.
    }
}

/// The same on a channel of its own at the present depth, for a caller without one.
template <class... Parts>
void logLine(std::int32_t level, const Parts&... parts) noexcept {
    if (level > Log::threshold()) return;
    Log channel(level);
    logLine(channel, level, parts...);
}

/// Writes the line "label: value".
template <class Value>
void logValue(Log& log, std::int32_t level, const char* label, const Value& value) noexcept {
    logLine(log, level, label, ": ", value);
}

}  // namespace qvo::util
