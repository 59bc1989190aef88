// The plug-in's resources as the host and a core reach them, through the module that carries them.

#include <gtest/gtest.h>
#include <windows.h>

#include <iterator>
#include <sstream>
#include <string>

#include "resources/resource.h"
#include "util/xml/Element.h"

namespace {

using qvo::util::xml::Element;

std::string embedded(int id, const char* type) {
    const HMODULE module = GetModuleHandleA(nullptr);
    const HRSRC found = FindResourceA(module, MAKEINTRESOURCEA(id), type);
    if (found == nullptr) return std::string();
    const char* const bytes = static_cast<const char*>(LockResource(LoadResource(module, found)));
    return std::string(bytes, SizeofResource(module, found));
}

/// The tag children of an element in one line: names, attributes and what they hold.
std::string outline(const Element& element) {
    std::string text = element.value;
    for (const auto& [name, value] : element.attributes)
        text += ' ' + name + '=' + value;
    if (element.children.empty()) return text;
    text += " {";
    for (const auto& child : element.children)
        text += ' ' + outline(*child);
    return text + " }";
}

TEST(PluginResources, OptionGroupReadsInOurDialect) {
    const char* const expected =
        "group name=3ds max 2010 adaptor { noexpandbutton body { list { body {"
        " check id=1030 name=Use dynamic meshes tooltip=This option will update mech information each frame,"
        " enabling objects to interract with animated objects. This option reduces performance significantly."
        " value=false { size y=20 }"
        " check id=1027 name=Use optimized transform controller value=true { size y=20 }"
        " button id=1028 name=Convert all controllers to default PRS controller { size y=20 }"
        " } } } }";
    Element fromText;
    ASSERT_EQ(fromText.parse(embedded(152, "XMLFILE")), 0);
    EXPECT_EQ(outline(fromText), expected);
    std::istringstream stream(embedded(IDX_OPTION_GROUP, "XMLFILE"));
    Element fromStream;  // drops line ends instead of taking them for blanks
    ASSERT_EQ(fromStream.read(stream), 0);
    EXPECT_EQ(outline(fromStream), expected);
}

TEST(PluginResources, PagesCarryTheirButtons) {
    const HWND frame =
        CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 300, 200, nullptr, nullptr, nullptr, nullptr);
    const struct {
        int page, control;
        const char* text;
    } cases[] = {{147, 1046, "Start Kestrel Studio"}, {145, 1057, "Convert to PRS controller"}};
    for (const auto& each : cases) {
        const DLGPROC answerNothing = [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; };
        const HWND page = CreateDialogParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(each.page), frame,
                                             answerNothing, 0);
        ASSERT_NE(page, nullptr) << GetLastError();
        char text[64];
        GetDlgItemTextA(page, each.control, text, sizeof text);
        EXPECT_STREQ(text, each.text);
        EXPECT_EQ(GetDlgItem(page, IDC_ATTACH_CORE), nullptr);
    }
    DestroyWindow(frame);
}

}  // namespace
