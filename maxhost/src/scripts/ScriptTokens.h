#pragma once

#include <string>
#include <vector>

namespace maxhost {

struct ScriptToken {
    /// A Word is an identifier, written plainly or between single quotes; a Name is an identifier after '#';
    /// an End is a semicolon, a line end or the end of the script.
    enum class Kind { Word, Name, Assign, Dot, Colon, Open, Close, End };

    Kind kind = Kind::End;
    std::string text;  // identifier, else what stands in the script
};

/// Splits a script into tokens, the last one an End.
/// Errors    throws std::runtime_error for a quote that is not closed and a character of no use.
std::vector<ScriptToken> readScriptTokens(const std::string& script);

}  // namespace maxhost
