#include <gtest/gtest.h>

#include <string>

#include "maxhost/win32/ResourceScript.h"
#include "maxhost/win32/ResourceTable.h"
#include "maxhost/win32/ResourceTokens.h"
#include "resources/resource.h"

namespace {

using maxhost::win32::DialogTemplate;
using maxhost::win32::ResourceScript;
using maxhost::win32::ResourceScriptError;

ResourceScript parse(const std::string& text) {
    return ResourceScript::parse(text, "t.rc", [](const std::string& name) -> std::string {
        if (name == "names.h") return "#pragma once\n#define PAGE 5 // a page\n#define BUTTON_ID 0x10\n";
        if (name == "code.h") return "#define PAGE 5\nint code\n";
        return "#include \"names.h\"\n";
    });
}

TEST(ResourceScript, ReadsDialogsAndFiles) {
    const ResourceScript script = parse(R"(
        #include <windows.h>
        #include "names.h"
        /* two
           lines */
        PAGE DIALOGEX 0, 0, 100, 50
        STYLE DS_SETFONT | WS_CHILD | NOT WS_CHILD | WS_POPUP
        CAPTION "Say ""hi""\n"
        FONT 8, "MS Shell Dlg", 400, 0, 0x1
        {
            CONTROL "Go", BUTTON_ID, "Button", BS_PUSHBUTTON | NOT WS_VISIBLE, -1, 2, 30, 4
            EDITTEXT 17, 1, 2, 3, 4, ES_READONLY | NOT WS_TABSTOP
        }
        6 XmlFile "a.xml"
        1 RT_RCDATA "b.bin"
        1 VERSIONINFO FILEVERSION 1,2,3,4 BEGIN BLOCK "x" BEGIN VALUE "END", "y" END END)");
    const DialogTemplate* const dialog = script.dialog(5);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->style, 0x80000040u);
    EXPECT_EQ(dialog->caption, "Say \"hi\"\n");
    EXPECT_EQ(dialog->fontName, "MS Shell Dlg");
    ASSERT_EQ(dialog->controls.size(), 2u);
    EXPECT_EQ(dialog->controls[0].className, "BUTTON");
    EXPECT_EQ(dialog->controls[0].id, 16);
    EXPECT_EQ(dialog->controls[0].box.x, -1);
    EXPECT_EQ(dialog->controls[0].style, WS_CHILD);
    EXPECT_EQ(dialog->controls[1].style, WS_CHILD | WS_VISIBLE | WS_BORDER | 0x800);
    ASSERT_NE(script.file("xmlfile", 6), nullptr);
    EXPECT_EQ(*script.file("XMLFILE", 6), "a.xml");
    EXPECT_NE(script.file("10", 1), nullptr);
    EXPECT_EQ(script.file("XMLFILE", 5), nullptr);
}

TEST(ResourceScript, RefusesWhatItCannotRead) {
    const struct {
        const char* text;
        const char* error;
    } cases[] = {
        {"5", "t.rc:1: a resource type is expected at the end of the script"},
        {"\nPAGE DIALOG 0,0,1,1", "t.rc:2: unknown name at \"PAGE\""},
        {"5 DIALOG 0,0,1,1 BEGIN", "t.rc:1: END is missing at the end of the script"},
        {"5 DIALOG 0,0,1,1 BEGIN SLIDER 1,1 END", "t.rc:1: unknown statement in a dialog at \"SLIDER\""},
        {"5 DIALOG 0,0,1,1 BEGIN CONTROL \"a\",1,\"Tree\",0,0,0,1,1 END",
         "t.rc:1: unknown control class at \"Tree\""},
        {"5 DIALOG 0,0,1,1 BEGIN END 5 DIALOG 0,0,1,1 BEGIN END",
         "t.rc:1: the dialog is declared twice at \"0\""},
        {"6 XMLFILE \"a.xml", "t.rc:1: the text's closing quote is missing"},
        {"#include \"code.h\"\n", "code.h:2: a header may only define names"},
        {"#include \"chain.h\"\n", "chain.h:1: a header may not include another one"},
    };
    for (const auto& each : cases) {
        std::string error;
        try {
            parse(each.text);
        } catch (const ResourceScriptError& failure) {
            error = failure.what();
        }
        EXPECT_EQ(error, each.error) << each.text;
    }
}

std::string embeddedText(std::size_t index) {
    const Win32EmbeddedFile& file = Win32Resources.files[index];
    return std::string(reinterpret_cast<const char*>(file.bytes), file.size);
}

TEST(ResourceScript, PluginPagesHaveTheirSizes) {
    const auto include = [](const std::string& name) {
        EXPECT_EQ(name, Win32Resources.files[1].name);
        return embeddedText(1);
    };
    const ResourceScript script =
        ResourceScript::parse(embeddedText(0), Win32Resources.files[0].name, include);
    const struct {
        int dialog, height, control, x, y, width, controlHeight;
        const char* text;
        const char* font;
    } cases[] = {
        {147, 33, IDC_START_STUDIO, 7, 7, 94, 19, "Start Kestrel Studio", "MS Shell Dlg"},
        {145, 41, IDC_CONVERT_TO_PRS, 14, 7, 82, 14, "Convert to PRS controller", "MS Sans Serif"},
    };
    for (const auto& each : cases) {
        const DialogTemplate* const dialog = script.dialog(each.dialog);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->box.width, 108);
        EXPECT_EQ(dialog->box.height, each.height);
        EXPECT_EQ(dialog->style & (WS_CHILD | WS_POPUP | WS_CAPTION), WS_CHILD);
        EXPECT_EQ(dialog->fontName, each.font);
        EXPECT_EQ(dialog->fontSize, 8);
        ASSERT_EQ(dialog->controls.size(), 1u);
        const auto& button = dialog->controls[0];
        EXPECT_EQ(button.id, each.control);
        EXPECT_EQ(button.text, each.text);
        EXPECT_EQ(button.style, WS_CHILD | WS_VISIBLE | WS_TABSTOP);
        EXPECT_EQ(button.box.x, each.x);
        EXPECT_EQ(button.box.y, each.y);
        EXPECT_EQ(button.box.width, each.width);
        EXPECT_EQ(button.box.height, each.controlHeight);
    }
}

}  // namespace
