#pragma once

#include <string>
#include <vector>

namespace headless {

/// Builds one JSON object, members in the order in which they are added, one a line.
class Json {
  public:
    void add(const std::string& name, const std::string& text) { member(name, quoted(text)); }
    void add(const std::string& name, const char* text) { add(name, std::string(text)); }
    void add(const std::string& name, bool value) { member(name, value ? "true" : "false"); }
    /// Non-finite numbers become null.
    void add(const std::string& name, double value);
    void add(const std::string& name, int value) { member(name, std::to_string(value)); }
    void add(const std::string& name, std::size_t value) { member(name, std::to_string(value)); }
    void add(const std::string& name, const std::vector<std::string>& texts);
    void add(const std::string& name, const Json& object);

    std::string text() const { return textAt(0); }

    /// Bytes outside ASCII are taken for Latin-1, so that any text gives valid JSON.
    static std::string quoted(const std::string& text);

  private:
    struct Member {
        std::string name, value;
    };

    void member(const std::string& name, const std::string& value) { members_.push_back({name, value}); }
    std::string textAt(std::size_t depth) const;

    std::vector<Member> members_;
};

}  // namespace headless
