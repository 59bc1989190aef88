#pragma once

#include <map>
#include <string>
#include <vector>

#include "maxhost/src/scripts/ScriptCommands.h"
#include "maxhost/src/scripts/ScriptTokens.h"

namespace maxhost {

/// Runs the few script statements that plug-ins and users of this host need; it is no language:
///     NAME = getCommandPanelTaskMode()      NAME = #create          NAME = OTHER_NAME
///     setCommandPanelTaskMode mode:VALUE    (a name such as #create, or a variable)
///     UtilityPanel.OpenUtility CLASS        (a script class name, plain or between single quotes)
///     max undo                              max redo
/// Statements are separated by ';' or a line end and run in order; identifiers are compared without case.
/// Variables are global: they last as long as the engine.
class CoreExport ScriptEngine {
  public:
    /// commands must outlive the engine.
    explicit ScriptEngine(ScriptCommands& commands);

    /// False when the script cannot be read (nothing was run then) or a statement failed; the statements
    /// after it are not run. lastError() says why.
    bool run(const std::string& script);

    /// Empty after a script that ran to its end.
    const std::string& lastError() const { return error; }

    /// Lets scripts name a utility by another name.
    /// className   as its descriptor gives it
    void addClassAlias(const std::string& alias, const std::string& className);

    /// A class's name in scripts: every character that is no letter or digit turned into '_'.
    static std::string scriptName(const std::string& className);

  private:
    using Kind = ScriptToken::Kind;

    void runStatement();
    void setMode();
    void openUtility();
    void runMenuCommand();
    std::string readValue();
    ScriptToken take();
    void expect(Kind kind, const char* text);
    bool isAt(Kind kind) const { return tokens[at].kind == kind; }
    [[noreturn]] void failAt(const ScriptToken& token) const;

    ScriptCommands& host;
    std::map<std::string, std::string> variables;  // lower-case name to the name of a mode
    std::map<std::string, std::string> aliases;    // lower-case script name to class name
    std::vector<ScriptToken> tokens;
    std::size_t at = 0;
    std::string error;
};

}  // namespace maxhost
