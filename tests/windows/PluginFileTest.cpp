// What the built plug-in library carries, read back out of the file.

#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

namespace {

class PluginFile : public ::testing::Test {
  protected:
    PluginFile() : library(LoadLibraryA(ZK_PLUGIN)) {}
    ~PluginFile() override {
        if (library != nullptr) FreeLibrary(library);
    }

    std::string resource(int id, const char* type) const {
        const HRSRC found = FindResourceA(library, MAKEINTRESOURCEA(id), type);
        if (found == nullptr) return {};
        const char* const bytes = static_cast<const char*>(LockResource(LoadResource(library, found)));
        return std::string(bytes, SizeofResource(library, found));
    }

    HMODULE library;
};

TEST_F(PluginFile, VersionAgreesWithTheExports) {
    ASSERT_NE(library, nullptr) << GetLastError();
    DWORD ignored = 0;
    std::vector<char> information(GetFileVersionInfoSizeA(ZK_PLUGIN, &ignored));
    ASSERT_FALSE(information.empty());
    ASSERT_TRUE(
        GetFileVersionInfoA(ZK_PLUGIN, 0, static_cast<DWORD>(information.size()), information.data()));
    void* found = nullptr;
    UINT size = 0;
    ASSERT_TRUE(VerQueryValueA(information.data(), "\\", &found, &size));
    const auto* const fixed = static_cast<const VS_FIXEDFILEINFO*>(found);
    EXPECT_EQ(fixed->dwFileVersionMS, 0x00090002u);
    EXPECT_EQ(fixed->dwFileVersionLS, 0x00000001u);

    using Description = const char* (*)();
    const auto description =
        reinterpret_cast<Description>(reinterpret_cast<void*>(GetProcAddress(library, "LibDescription")));
    ASSERT_NE(description, nullptr);
    char query[] = "\\StringFileInfo\\040904E4\\FileDescription";
    ASSERT_TRUE(VerQueryValueA(information.data(), query, &found, &size));
    EXPECT_STREQ(static_cast<const char*>(found), description());
}

TEST_F(PluginFile, CarriesOptionGroupAndManifest) {
    ASSERT_NE(library, nullptr) << GetLastError();
    const std::string options = resource(152, "XMLFILE");
    for (const char* part : {"3ds max 2010 adaptor", "noexpandbutton", "1030", "1027", "1028"})
        EXPECT_NE(options.find(part), std::string::npos) << part << " is missing in " << options;
    constexpr int kManifestOfLibraries = 2;
    EXPECT_NE(resource(kManifestOfLibraries, MAKEINTRESOURCEA(24)).find("Common-Controls"),
              std::string::npos);
}

TEST_F(PluginFile, PagesHaveTheirSizes) {
    ASSERT_NE(library, nullptr) << GetLastError();
    const HWND frame =
        CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 400, 200, nullptr, nullptr, nullptr, nullptr);
    const struct {
        int page, control;
        RECT pageUnits, controlUnits;  // corner, width and height in dialog units
    } cases[] = {{147, 1046, {0, 0, 108, 33}, {7, 7, 94, 19}}, {145, 1057, {0, 0, 108, 41}, {14, 7, 82, 14}}};
    for (const auto& each : cases) {
        const DLGPROC answerNothing = [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; };
        const HWND page = CreateDialogParamA(library, MAKEINTRESOURCEA(each.page), frame, answerNothing, 0);
        ASSERT_NE(page, nullptr) << GetLastError();
        const HWND control = GetDlgItem(page, each.control);
        ASSERT_NE(control, nullptr);
        EXPECT_NE(GetWindowLongPtrA(control, GWL_STYLE) & WS_TABSTOP, 0);
        RECT expected = each.pageUnits, actual = {0, 0, 0, 0};
        MapDialogRect(page, &expected);
        GetClientRect(page, &actual);
        EXPECT_EQ(actual.right, expected.right);
        EXPECT_EQ(actual.bottom, expected.bottom);
        expected = each.controlUnits;
        MapDialogRect(page, &expected);
        GetWindowRect(control, &actual);
        MapWindowPoints(nullptr, page, reinterpret_cast<POINT*>(&actual), 2);
        // Corner and size become whole pixels each for itself, whatever font the units come from.
        EXPECT_EQ(actual.left, expected.left);
        EXPECT_EQ(actual.top, expected.top);
        EXPECT_EQ(actual.right - actual.left, expected.right);
        EXPECT_EQ(actual.bottom - actual.top, expected.bottom);
    }
    DestroyWindow(frame);
}

}  // namespace
