// Dialogs and stored files of a module. The same expectations hold for the native calls and for Windows' own.

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "tests/maxhost/modules/test_pages.h"

namespace {

/// What the dialog procedure saw, reached through the dialog's user data.
struct Seen {
    bool initialised = false;
    int commands = 0;
    WPARAM lastCommand = 0;
    LPARAM lastControl = 0;
    bool destroyed = false;
};

INT_PTR CALLBACK recordMessage(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) SetWindowLongPtrA(dialog, GWLP_USERDATA, lParam);
    Seen* const seen = reinterpret_cast<Seen*>(GetWindowLongPtrA(dialog, GWLP_USERDATA));
    if (seen == nullptr) return FALSE;
    switch (message) {
        case WM_INITDIALOG:
            seen->initialised = GetDlgItem(dialog, IDC_PRESS) != nullptr;
            return TRUE;
        case WM_COMMAND:
            if (HIWORD(wParam) != BN_CLICKED) return FALSE;  // Windows also tells of the focus
            ++seen->commands;
            seen->lastCommand = wParam;
            seen->lastControl = lParam;
            return TRUE;
        case WM_DESTROY:
            seen->destroyed = GetDlgItem(dialog, IDC_PRESS) != nullptr;
            return TRUE;
        case WM_APP:
            SetWindowLongPtrA(dialog, DWLP_MSGRESULT, 77);
            return TRUE;
        default:
            return FALSE;
    }
}

class Dialog : public ::testing::Test {
  protected:
    Dialog() {
        frame = CreateWindowExA(0, "STATIC", "frame", WS_POPUP, 0, 0, 300, 200, nullptr, nullptr, nullptr,
                                nullptr);
        dialog = CreateDialogParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDD_BUTTON_PAGE), frame,
                                    recordMessage, reinterpret_cast<LPARAM>(&seen));
    }
    ~Dialog() override {
        DestroyWindow(frame);
        EXPECT_FALSE(IsWindow(dialog));
    }

    Seen seen;
    HWND frame = nullptr;
    HWND dialog = nullptr;
};

TEST_F(Dialog, StartsFromItsTemplate) {
    ASSERT_NE(dialog, nullptr) << GetLastError();
    EXPECT_TRUE(seen.initialised);
    EXPECT_EQ(GetParent(dialog), frame);
    char text[32];
    EXPECT_EQ(GetDlgItemTextA(dialog, IDC_LABEL, text, sizeof text), 7u);
    EXPECT_STREQ(text, "A label");
    EXPECT_EQ(GetDlgItem(dialog, 9999), nullptr);
    EXPECT_FALSE(SetDlgItemTextA(dialog, 9999, "nobody"));
    EXPECT_EQ(GetDlgItemTextA(dialog, 9999, text, sizeof text), 0u);
    EXPECT_STREQ(text, "");
}

TEST_F(Dialog, TextsAreCutToTheBuffer) {
    EXPECT_TRUE(SetDlgItemTextA(dialog, IDC_FIELD, "a longer text"));
    char text[6] = "?????";
    EXPECT_EQ(GetDlgItemTextA(dialog, IDC_FIELD, text, sizeof text), 5u);
    EXPECT_STREQ(text, "a lon");
    EXPECT_EQ(SendMessageA(GetDlgItem(dialog, IDC_FIELD), WM_GETTEXTLENGTH, 0, 0), 13);
}

TEST_F(Dialog, ClicksAndMessagesReachTheProcedure) {
    const HWND button = GetDlgItem(dialog, IDC_PRESS);
    SendMessageA(button, BM_CLICK, 0, 0);
    EXPECT_EQ(seen.commands, 1);
    EXPECT_EQ(LOWORD(seen.lastCommand), IDC_PRESS);
    EXPECT_EQ(HIWORD(seen.lastCommand), BN_CLICKED);
    EXPECT_EQ(seen.lastControl, reinterpret_cast<LPARAM>(button));
    EXPECT_EQ(SendMessageA(dialog, WM_APP, 0, 0), 77);
    EXPECT_EQ(SendMessageA(dialog, WM_APP + 1, 0, 0), 0);
}

TEST_F(Dialog, ShowsAndEnds) {
    EXPECT_FALSE(IsWindowVisible(dialog));
    ShowWindow(dialog, SW_SHOW);
    EXPECT_FALSE(IsWindowVisible(dialog)) << "its frame is hidden";
    ShowWindow(frame, SW_SHOW);
    EXPECT_TRUE(IsWindowVisible(dialog));
    const HWND button = GetDlgItem(dialog, IDC_PRESS);
    EXPECT_TRUE(DestroyWindow(dialog));
    EXPECT_TRUE(seen.destroyed) << "told while its controls were still there";
    EXPECT_FALSE(IsWindow(button));
    EXPECT_FALSE(DestroyWindow(dialog));
    EXPECT_EQ(SendMessageA(dialog, WM_APP, 0, 0), 0);
}

TEST_F(Dialog, NeedsATemplateAndAParent) {
    const HINSTANCE module = GetModuleHandleA(nullptr);
    EXPECT_EQ(CreateDialogParamA(module, MAKEINTRESOURCEA(999), frame, recordMessage, 0), nullptr);
    EXPECT_EQ(CreateDialogParamA(module, MAKEINTRESOURCEA(IDD_BUTTON_PAGE), nullptr, recordMessage, 0),
              nullptr);
}

TEST(Resource, StoredFileIsFoundByTypeAndNumber) {
    const HMODULE module = GetModuleHandleA(nullptr);
    const HRSRC found = FindResourceA(module, MAKEINTRESOURCEA(7), "xmlfile");
    ASSERT_NE(found, nullptr) << GetLastError();
    const char* const bytes = static_cast<const char*>(LockResource(LoadResource(module, found)));
    EXPECT_EQ(std::string(bytes, SizeofResource(module, found)), "<stored/>\n");
    EXPECT_EQ(FindResourceA(module, MAKEINTRESOURCEA(8), "XMLFILE"), nullptr);
    EXPECT_EQ(FindResourceA(module, MAKEINTRESOURCEA(7), "OTHER"), nullptr);
}

}  // namespace
