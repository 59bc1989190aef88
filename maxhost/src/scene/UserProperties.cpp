#include "maxhost/src/scene/UserProperties.h"

namespace maxhost {

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool equalsIgnoringCase(const char* a, const std::string& b, size_t length) {
    if (length != b.size()) return false;
    for (size_t i = 0; i < length; ++i)
        if (lower(a[i]) != lower(b[i])) return false;
    return true;
}

}  // namespace

bool UserProperties::findLine(const std::string& key, Line& line) const {
    for (size_t begin = 0; begin < text_.size(); begin = line.next) {
        const size_t lineFeed = text_.find('\n', begin);
        line.begin = begin;
        line.next = lineFeed == std::string::npos ? text_.size() : lineFeed + 1;
        line.end = lineFeed == std::string::npos ? text_.size() : lineFeed;
        if (line.end > begin && text_[line.end - 1] == '\r') --line.end;

        size_t at = begin;
        while (at < line.end && isBlank(text_[at]))
            ++at;
        const size_t keyBegin = at;
        while (at < line.end && !isBlank(text_[at]) && text_[at] != '=')
            ++at;
        const size_t keyEnd = at;
        while (at < line.end && isBlank(text_[at]))
            ++at;
        if (at == line.end || text_[at] != '=') continue;
        if (!equalsIgnoringCase(text_.data() + keyBegin, key, keyEnd - keyBegin)) continue;

        line.valueBegin = at + 1;
        line.valueEnd = line.end;
        while (line.valueBegin < line.valueEnd && isBlank(text_[line.valueBegin]))
            ++line.valueBegin;
        while (line.valueEnd > line.valueBegin && isBlank(text_[line.valueEnd - 1]))
            --line.valueEnd;
        return true;
    }
    return false;
}

bool UserProperties::find(const std::string& key, std::string* value) const {
    Line line{};
    if (!findLine(key, line)) return false;
    if (value != nullptr) value->assign(text_, line.valueBegin, line.valueEnd - line.valueBegin);
    return true;
}

void UserProperties::set(const std::string& key, const std::string& value) {
    const std::string written = key + " = " + value + "\r\n";
    Line line{};
    if (findLine(key, line)) {
        text_.replace(line.begin, line.next - line.begin, written);
        return;
    }
    if (!text_.empty() && text_.back() != '\n') text_ += "\r\n";
    text_ += written;
}

}  // namespace maxhost
