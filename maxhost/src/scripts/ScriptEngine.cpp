#include "maxhost/src/scripts/ScriptEngine.h"

#include <cctype>
#include <iterator>
#include <stdexcept>
#include <utility>

namespace maxhost {

namespace {

/// By task mode, the first one is mode 1.
constexpr const char* kModeNames[] = {"create", "modify", "hierarchy", "motion", "display", "utility"};

std::string lowerCase(std::string text) {
    for (char& letter : text)
        letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    return text;
}

/// 0 for a name that is no mode's.
int modeOf(const std::string& name) {
    int mode = 1;
    for (const char* const each : kModeNames) {
        if (name == each) return mode;
        ++mode;
    }
    return 0;
}

}  // namespace

ScriptEngine::ScriptEngine(ScriptCommands& commands) : host(commands) {}

void ScriptEngine::addClassAlias(const std::string& alias, const std::string& className) {
    aliases[lowerCase(alias)] = className;
}

std::string ScriptEngine::scriptName(const std::string& className) {
    std::string name = className;
    for (char& letter : name) {
        if (std::isalnum(static_cast<unsigned char>(letter)) == 0) letter = '_';
    }
    return name;
}

bool ScriptEngine::run(const std::string& script) {
    // A statement may run another script: opening a utility runs plug-in code.
    std::vector<ScriptToken> outerTokens = std::move(tokens);
    const std::size_t outerAt = std::exchange(at, 0);
    std::string cause;
    try {
        tokens = readScriptTokens(script);
        while (at < tokens.size())
            runStatement();
    } catch (const std::runtime_error& failure) {
        cause = failure.what();
    }
    tokens = std::move(outerTokens);
    at = outerAt;
    error = std::move(cause);
    return error.empty();
}

void ScriptEngine::runStatement() {
    if (isAt(Kind::End)) {
        ++at;
        return;
    }
    const ScriptToken first = take();
    if (first.kind != Kind::Word) failAt(first);
    const std::string word = lowerCase(first.text);
    if (isAt(Kind::Assign)) {
        take();
        variables[word] = readValue();
    } else if (word == "setcommandpaneltaskmode") {
        setMode();
    } else if (word == "utilitypanel") {
        openUtility();
    } else if (word == "max") {
        runMenuCommand();
    } else {
        failAt(first);
    }
    expect(Kind::End, "the statement's end");
}

void ScriptEngine::setMode() {
    const ScriptToken keyword = take();
    if (keyword.kind != Kind::Word || lowerCase(keyword.text) != "mode") failAt(keyword);
    expect(Kind::Colon, "\":\"");
    const std::string name = readValue();
    const int mode = modeOf(name);
    if (mode == 0) throw std::runtime_error("unknown task mode #" + name);
    host.setTaskMode(mode);
}

void ScriptEngine::openUtility() {
    expect(Kind::Dot, "\".\"");
    const ScriptToken method = take();
    if (method.kind != Kind::Word || lowerCase(method.text) != "openutility") failAt(method);
    const ScriptToken wanted = take();
    if (wanted.kind != Kind::Word) failAt(wanted);
    const std::string wantedName = lowerCase(wanted.text);
    const auto alias = aliases.find(wantedName);
    for (const std::string& name : host.utilityNames()) {
        const bool matches =
            alias == aliases.end() ? lowerCase(scriptName(name)) == wantedName : name == alias->second;
        if (!matches) continue;
        if (!host.openUtility(name))
            throw std::runtime_error("the utility \"" + name + "\" cannot be opened");
        return;
    }
    throw std::runtime_error("unknown utility class " + wanted.text);
}

void ScriptEngine::runMenuCommand() {
    const ScriptToken command = take();
    const std::string word = command.kind == Kind::Word ? lowerCase(command.text) : "";
    if (word == "undo") {
        host.undo();
    } else if (word == "redo") {
        host.redo();
    } else {
        failAt(command);
    }
}

/// The name of a mode: written out, in a variable, or the one that the panel is in.
std::string ScriptEngine::readValue() {
    const ScriptToken token = take();
    const std::string word = lowerCase(token.text);
    if (token.kind == Kind::Name) return word;
    if (token.kind != Kind::Word) failAt(token);
    if (word == "getcommandpaneltaskmode") {
        expect(Kind::Open, "\"(\"");
        expect(Kind::Close, "\")\"");
        return kModeNames[host.taskMode() - 1];
    }
    const auto variable = variables.find(word);
    if (variable == variables.end()) throw std::runtime_error("unknown variable " + token.text);
    return variable->second;
}

ScriptToken ScriptEngine::take() {
    const ScriptToken token = tokens[at];
    if (token.kind != Kind::End) ++at;  // a statement never reads past its end
    return token;
}

void ScriptEngine::expect(Kind kind, const char* text) {
    const ScriptToken token = tokens[at];
    if (token.kind != kind) {
        const std::string found = token.kind == Kind::End ? "the statement's end" : '"' + token.text + '"';
        throw std::runtime_error(std::string(text) + " expected before " + found);
    }
    ++at;
}

void ScriptEngine::failAt(const ScriptToken& token) const {
    if (token.kind == Kind::End) throw std::runtime_error("the statement is not complete");
    throw std::runtime_error("cannot run \"" + token.text + '"');
}

}  // namespace maxhost
