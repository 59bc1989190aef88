#pragma once
// Internal to the native Windows calls.

#include <windows.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace maxhost::win32 {

/// Position and size in dialog units.
struct DialogBox {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

struct ControlTemplate {
    std::string className;  // "BUTTON", "STATIC" or "EDIT"
    std::string text;
    int id = 0;
    DWORD style = 0;
    DialogBox box;
};

struct DialogTemplate {
    DialogBox box;
    DWORD style = 0;
    std::string caption;
    int fontSize = 0;
    std::string fontName;
    std::vector<ControlTemplate> controls;
};

/// What a resource script declares, as far as the native calls read it: dialogs, and the files stored under a
/// type and an id. Version information and the language are read over; any other statement is an error, so
/// that a script which would be read differently on Windows does not pass here.
class ResourceScript {
  public:
    /// Gives the text of a file that the script includes by a quoted name; throws when there is none.
    using Include = std::function<std::string(const std::string& name)>;

    /// name      of the script, for messages
    /// Errors    throws ResourceScriptError "FILE:LINE: cause".
    static ResourceScript parse(const std::string& text, const std::string& name, const Include& include);

    /// Null when the script declares no such dialog.
    const DialogTemplate* dialog(int id) const;

    /// Name of the file stored under a type ("XMLFILE", in any case, or the number as text) and id; else
    /// null.
    const std::string* file(const std::string& type, int id) const;

  private:
    friend class ResourceScriptParser;

    std::map<int, DialogTemplate> dialogs;
    std::map<std::pair<std::string, int>, std::string> files;  // types in upper case
};

}  // namespace maxhost::win32
