#pragma once
// Internal to the native Windows calls.

#include <stdexcept>
#include <string>
#include <vector>

namespace maxhost::win32 {

/// A resource script that cannot be used. The text says where: "FILE:LINE: cause".
class ResourceScriptError : public std::runtime_error {
  public:
    ResourceScriptError(const std::string& file, int line, const std::string& cause)
        : std::runtime_error(file + ':' + std::to_string(line) + ": " + cause) {}
};

struct ResourceToken {
    enum class Kind { Word, Number, Text, Mark, End };

    Kind kind = Kind::End;
    std::string text;  // word, text without its quotes and escapes, or one character
    long number = 0;   // of a Number, 0 to 0xffffffff
    int line = 0;
};

/// A line that starts with '#': its words, or what follows the first word for "include".
struct ResourceDirective {
    std::string name;
    std::string rest;
    int line = 0;
};

struct ResourceTokens {
    std::vector<ResourceToken> tokens;  // closed by one of kind End
    std::vector<ResourceDirective> directives;
};

/// Splits a script into tokens; comments of both kinds fall away.
/// file      name for messages
/// firstLine number of the text's first line in that file
/// Errors    throws ResourceScriptError for an open comment or text, a bad number and a character of no use.
ResourceTokens readResourceTokens(const std::string& text, const std::string& file, int firstLine = 1);

}  // namespace maxhost::win32
