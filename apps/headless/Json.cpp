#include "apps/headless/Json.h"

#include <cmath>
#include <cstdio>

namespace headless {

std::string Json::quoted(const std::string& text) {
    std::string result = "\"";
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            result += '\\';
            result += c;
        } else if (byte < 0x20 || byte > 0x7e) {
            char code[8];
            std::snprintf(code, sizeof code, "\\u%04x", static_cast<unsigned>(byte));
            result += code;
        } else {
            result += c;
        }
    }
    return result + '"';
}

void Json::add(const std::string& name, double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.9g", value);
    member(name, std::isfinite(value) ? text : "null");
}

void Json::add(const std::string& name, const std::vector<std::string>& texts) {
    std::string list;
    for (const std::string& text : texts)
        list += (list.empty() ? "" : ", ") + quoted(text);
    member(name, '[' + list + ']');
}

void Json::add(const std::string& name, const Json& object) {
    member(name, object.textAt(1));
}

std::string Json::textAt(std::size_t depth) const {
    const std::string indent(2 * depth, ' ');
    std::string text = "{";
    for (std::size_t i = 0; i < members_.size(); ++i)
        text += (i == 0 ? "\n" : ",\n") + indent + "  " + quoted(members_[i].name) + ": " + members_[i].value;
    return text + '\n' + indent + '}';
}

}  // namespace headless
