#include "maxhost/win32/ResourceScript.h"

#include <cctype>

#include "maxhost/win32/ResourceScriptParser.h"

namespace maxhost::win32 {

ResourceScript ResourceScript::parse(const std::string& text, const std::string& name,
                                     const Include& include) {
    return ResourceScriptParser(include).parse(text, name);
}

const DialogTemplate* ResourceScript::dialog(int id) const {
    const auto found = dialogs.find(id);
    return found == dialogs.end() ? nullptr : &found->second;
}

const std::string* ResourceScript::file(const std::string& type, int id) const {
    std::string upper = type;
    for (char& letter : upper)
        letter = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
    const auto found = files.find(std::make_pair(upper, id));
    return found == files.end() ? nullptr : &found->second;
}

}  // namespace maxhost::win32
