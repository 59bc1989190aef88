#pragma once
// Internal to the native Windows calls.

#include <map>
#include <string>

#include "maxhost/win32/ResourceScript.h"
#include "maxhost/win32/ResourceTokens.h"

namespace maxhost::win32 {

/// Reads one script and the headers that it includes by a quoted name.
class ResourceScriptParser {
  public:
    explicit ResourceScriptParser(const ResourceScript::Include& includeReader) : include(includeReader) {}

    ResourceScript parse(const std::string& text, const std::string& name);

  private:
    void readDirectives(const ResourceTokens& read, const std::string& name);
    void define(const ResourceDirective& directive, const std::string& name);
    void includeFile(const ResourceDirective& directive, const std::string& name);

    void readResource();
    void readVersion();
    void readDialog(int id, bool extended);
    bool readDialogStatement(DialogTemplate& dialog, bool extended);
    void readControl(DialogTemplate& dialog);
    std::string readClassName();
    DialogBox readBox();

    /// Numbers joined by '|', names for them and NOT, as styles are written. `start` is what NOT takes from.
    DWORD readStyle(DWORD start);
    int readInteger();
    std::string readText();
    bool readOptionalComma();
    void expectMark(char mark);
    bool takeWord(const char* word);
    void expectBegin();
    bool takeEnd();
    std::string typeName();

    const ResourceToken& peek() const { return tokens[at]; }
    ResourceToken take();
    [[noreturn]] void fail(const ResourceToken& token, const std::string& cause) const;

    const ResourceScript::Include& include;
    std::string script;
    std::vector<ResourceToken> tokens;
    std::size_t at = 0;
    std::map<std::string, long> names;
    ResourceScript result;
};

}  // namespace maxhost::win32
