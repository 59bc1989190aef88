#include "maxhost/win32/ResourceScriptParser.h"

#include <algorithm>
#include <cctype>
#include <iterator>

namespace maxhost::win32 {

namespace {

using Kind = ResourceToken::Kind;

// Dialog and control styles that only resource scripts name.
constexpr DWORD kShellFont = 0x48;
constexpr DWORD kPushButton = 0x0;
constexpr DWORD kDefaultPushButton = 0x1;
constexpr DWORD kEditDefault = WS_BORDER | WS_TABSTOP;

const std::map<std::string, long>& knownNames() {
    static const std::map<std::string, long> names = {
        {"WS_OVERLAPPED", WS_OVERLAPPED},
        {"WS_POPUP", WS_POPUP},
        {"WS_CHILD", WS_CHILD},
        {"WS_VISIBLE", WS_VISIBLE},
        {"WS_DISABLED", WS_DISABLED},
        {"WS_BORDER", WS_BORDER},
        {"WS_CAPTION", WS_CAPTION},
        {"WS_SYSMENU", WS_SYSMENU},
        {"WS_GROUP", WS_GROUP},
        {"WS_TABSTOP", WS_TABSTOP},
        {"DS_SETFONT", 0x40},
        {"DS_FIXEDSYS", 0x8},
        {"DS_SHELLFONT", kShellFont},
        {"DS_CONTROL", 0x400},
        {"BS_PUSHBUTTON", kPushButton},
        {"BS_DEFPUSHBUTTON", kDefaultPushButton},
        {"ES_READONLY", 0x800},
        {"ES_AUTOHSCROLL", 0x80},
        {"RT_RCDATA", 10},
        {"VS_VERSION_INFO", 1},
        {"LANG_ENGLISH", 9},
        {"SUBLANG_ENGLISH_US", 1},
        {"RT_MANIFEST", 24},
        {"CREATEPROCESS_MANIFEST_RESOURCE_ID", 1},
        {"ISOLATIONAWARE_MANIFEST_RESOURCE_ID", 2},
    };
    return names;
}

struct ControlStatement {
    const char* word;
    const char* className;
    DWORD style;
    bool hasText;
};

constexpr ControlStatement kControlStatements[] = {
    {"PUSHBUTTON", "BUTTON", kPushButton | WS_TABSTOP, true},
    {"DEFPUSHBUTTON", "BUTTON", kDefaultPushButton | WS_TABSTOP, true},
    {"LTEXT", "STATIC", WS_GROUP, true},
    {"EDITTEXT", "EDIT", kEditDefault, false},
};

std::string upperCase(std::string text) {
    for (char& letter : text)
        letter = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
    return text;
}

}  // namespace

ResourceScript ResourceScriptParser::parse(const std::string& text, const std::string& name) {
    script = name;
    names = knownNames();
    ResourceTokens read = readResourceTokens(text, name);
    readDirectives(read, name);
    tokens = std::move(read.tokens);
    while (peek().kind != Kind::End)
        readResource();
    return std::move(result);
}

/// All names are defined before the first statement is read: scripts keep them in a header at the top.
void ResourceScriptParser::readDirectives(const ResourceTokens& read, const std::string& name) {
    for (const ResourceDirective& directive : read.directives) {
        if (directive.name == "define") {
            define(directive, name);
        } else if (directive.name == "include") {
            includeFile(directive, name);
        } else if (directive.name != "pragma") {
            throw ResourceScriptError(name, directive.line, '#' + directive.name + " cannot be read here");
        }
    }
}

void ResourceScriptParser::define(const ResourceDirective& directive, const std::string& name) {
    const std::vector<ResourceToken> words = readResourceTokens(directive.rest, name, directive.line).tokens;
    const bool valid = words.size() == 3 && words[0].kind == Kind::Word && words[1].kind == Kind::Number;
    if (!valid) throw ResourceScriptError(name, directive.line, "a name and one number are expected");
    const auto [known, isNew] = names.emplace(words[0].text, words[1].number);
    if (isNew || known->second == words[1].number) return;
    throw ResourceScriptError(name, directive.line, words[0].text + " is defined twice");
}

void ResourceScriptParser::includeFile(const ResourceDirective& directive, const std::string& name) {
    const std::string& file = directive.rest;
    if (!file.empty() && file.front() == '<') return;  // the system's own header: its names are known
    if (file.size() < 3 || file.front() != '"' || file.back() != '"') {
        throw ResourceScriptError(name, directive.line, "a file name is expected");
    }
    const std::string header = file.substr(1, file.size() - 2);
    if (name != script)
        throw ResourceScriptError(name, directive.line, "a header may not include another one");
    const ResourceTokens read = readResourceTokens(include(header), header);
    if (read.tokens.size() > 1) {
        throw ResourceScriptError(header, read.tokens.front().line, "a header may only define names");
    }
    readDirectives(read, header);
}

void ResourceScriptParser::readResource() {
    if (takeWord("LANGUAGE")) {
        readInteger();
        expectMark(',');
        readInteger();
        return;
    }
    const int id = readInteger();
    if (takeWord("DIALOGEX")) return readDialog(id, /*extended=*/true);
    if (takeWord("DIALOG")) return readDialog(id, /*extended=*/false);
    if (takeWord("VERSIONINFO")) return readVersion();
    const ResourceToken place = peek();
    const std::string type = typeName();
    if (!result.files.emplace(std::make_pair(type, id), readText()).second) fail(place, "declared twice");
}

/// Nothing here asks for version information; on Windows the system reads it.
void ResourceScriptParser::readVersion() {
    while (peek().kind != Kind::End && !takeWord("BEGIN"))
        take();
    for (int depth = 1; depth > 0;) {
        if (takeWord("BEGIN")) {
            ++depth;
        } else if (takeWord("END")) {
            --depth;
        } else if (take().kind == Kind::End) {
            fail(peek(), "END is missing");
        }
    }
}

void ResourceScriptParser::readDialog(int id, bool extended) {
    const ResourceToken place = peek();
    DialogTemplate dialog;
    dialog.box = readBox();
    dialog.style = WS_POPUP | WS_BORDER | WS_SYSMENU;
    while (readDialogStatement(dialog, extended)) {
    }
    expectBegin();
    while (!takeEnd())
        readControl(dialog);
    if (!result.dialogs.emplace(id, std::move(dialog)).second) fail(place, "the dialog is declared twice");
}

bool ResourceScriptParser::readDialogStatement(DialogTemplate& dialog, bool extended) {
    if (takeWord("STYLE")) {
        dialog.style = readStyle(0);
    } else if (takeWord("EXSTYLE")) {
        readStyle(0);
    } else if (takeWord("CAPTION")) {
        dialog.caption = readText();
    } else if (takeWord("FONT")) {
        dialog.fontSize = readInteger();
        expectMark(',');
        dialog.fontName = readText();
        // weight, italic and character set
        for (int i = 0; i < 3 && extended && readOptionalComma(); ++i)
            readInteger();
    } else {
        return false;
    }
    return true;
}

void ResourceScriptParser::readControl(DialogTemplate& dialog) {
    const ResourceToken word = take();
    const auto known = std::find_if(std::begin(kControlStatements), std::end(kControlStatements),
                                    [&](const ControlStatement& each) { return word.text == each.word; });
    const bool general = word.kind == Kind::Word && word.text == "CONTROL";
    if (!general && (word.kind != Kind::Word || known == std::end(kControlStatements))) {
        fail(word, "unknown statement in a dialog");
    }
    ControlTemplate control;
    if (general || known->hasText) {
        control.text = readText();
        expectMark(',');
    }
    control.id = readInteger();
    expectMark(',');
    control.style = WS_CHILD | WS_VISIBLE;
    if (general) {
        control.className = readClassName();
        expectMark(',');
        control.style = readStyle(control.style);
        expectMark(',');
    } else {
        control.className = known->className;
        control.style |= known->style;
    }
    control.box = readBox();
    if (!general && readOptionalComma()) control.style = readStyle(control.style);
    dialog.controls.push_back(std::move(control));
}

std::string ResourceScriptParser::readClassName() {
    const ResourceToken token = take();
    const std::string name = upperCase(token.text);
    if (name != "BUTTON" && name != "STATIC" && name != "EDIT") fail(token, "unknown control class");
    return name;
}

DialogBox ResourceScriptParser::readBox() {
    DialogBox box;
    box.x = readInteger();
    expectMark(',');
    box.y = readInteger();
    expectMark(',');
    box.width = readInteger();
    expectMark(',');
    box.height = readInteger();
    return box;
}

DWORD ResourceScriptParser::readStyle(DWORD start) {
    DWORD style = start;
    do {
        const bool removes = takeWord("NOT");
        const DWORD bits = static_cast<DWORD>(readInteger());
        style = removes ? style & ~bits : style | bits;
    } while (peek().text == "|" && take().kind == Kind::Mark);
    return style;
}

int ResourceScriptParser::readInteger() {
    const bool negative = peek().kind == Kind::Mark && peek().text == "-";
    if (negative) take();
    const ResourceToken token = take();
    long number = token.number;
    if (token.kind == Kind::Word) {
        const auto known = names.find(token.text);
        if (known == names.end()) fail(token, "unknown name");
        number = known->second;
    } else if (token.kind != Kind::Number) {
        fail(token, "a number is expected");
    }
    return static_cast<int>(negative ? -number : number);
}

std::string ResourceScriptParser::readText() {
    const ResourceToken token = take();
    if (token.kind != Kind::Text) fail(token, "a quoted text is expected");
    return token.text;
}

/// A type is a word such as XMLFILE, or a number or a name for one.
std::string ResourceScriptParser::typeName() {
    const ResourceToken& token = peek();
    const bool isNumber = token.kind == Kind::Number || names.count(token.text) != 0;
    if (isNumber) return std::to_string(readInteger());
    if (token.kind != Kind::Word) fail(token, "a resource type is expected");
    return upperCase(take().text);
}

bool ResourceScriptParser::readOptionalComma() {
    const bool present = peek().kind == Kind::Mark && peek().text == ",";
    if (present) take();
    return present;
}

void ResourceScriptParser::expectMark(char mark) {
    const ResourceToken token = take();
    if (token.kind != Kind::Mark || token.text[0] != mark)
        fail(token, std::string("'") + mark + "' is expected");
}

bool ResourceScriptParser::takeWord(const char* word) {
    const bool present = peek().kind == Kind::Word && peek().text == word;
    if (present) take();
    return present;
}

void ResourceScriptParser::expectBegin() {
    if (takeWord("BEGIN")) return;
    expectMark('{');
}

bool ResourceScriptParser::takeEnd() {
    if (takeWord("END")) return true;
    if (peek().kind == Kind::End) fail(peek(), "END is missing");
    const bool present = peek().kind == Kind::Mark && peek().text == "}";
    if (present) take();
    return present;
}

/// The closing token is never passed, so every look ahead finds one.
ResourceToken ResourceScriptParser::take() {
    const ResourceToken token = peek();
    if (token.kind != Kind::End) ++at;
    return token;
}

void ResourceScriptParser::fail(const ResourceToken& token, const std::string& cause) const {
    const std::string where = token.kind == Kind::End ? "the end of the script" : '"' + token.text + '"';
    throw ResourceScriptError(script, token.line, cause + " at " + where);
}

}  // namespace maxhost::win32
