#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <string>
#include <vector>

#include "maxhost/win32/Win32Session.h"

namespace {

using maxhost::win32::Win32Session;

const std::string kLibrary = std::string(TEST_LIBRARY_FOLDER) + "/counting.dll";

std::string withBackslashes(std::string path) {
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
}

std::string lastErrorText() {
    char text[1024];
    FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM, nullptr, GetLastError(), 0, text, sizeof text, nullptr);
    return text;
}

std::vector<std::string> journal() {
    std::vector<std::string> events;
    for (const auto& box : Win32Session::messageBoxes())
        events.push_back(box.text);
    return events;
}

int callCount(HMODULE library) {
    return static_cast<int>(GetProcAddress(library, "nextCount")());
}

class Win32Library : public ::testing::Test {
  protected:
    Win32Library() { SetDllDirectoryA(TEST_DEPENDENCY_FOLDER); }
    ~Win32Library() override { Win32Session::reset(); }
};

TEST_F(Win32Library, DependenciesAreFoundInTheSearchFolderOnly) {
    SetDllDirectoryA(nullptr);
    EXPECT_EQ(LoadLibraryA(kLibrary.c_str()), nullptr);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_MOD_NOT_FOUND});
    EXPECT_NE(lastErrorText().find("dependency.dll"), std::string::npos) << lastErrorText();

    SetDllDirectoryA(withBackslashes(TEST_DEPENDENCY_FOLDER).c_str());
    const HMODULE library = LoadLibraryA(kLibrary.c_str());
    ASSERT_NE(library, nullptr) << lastErrorText();
    SetDllDirectoryA(nullptr);
    EXPECT_EQ(callCount(library), 41);
    EXPECT_EQ(GetProcAddress(library, "dependencyNumber"), nullptr) << "an export of the library it needs";
    EXPECT_EQ(GetProcAddress(library, MAKEINTRESOURCEA(1)), nullptr);
    EXPECT_TRUE(FreeLibrary(library));
}

TEST_F(Win32Library, PathsTakeBothSeparatorsAndKeepTheirCase) {
    const std::string upper = std::string(TEST_LIBRARY_FOLDER) + "/COUNTING.DLL";
    const struct {
        std::string path;
        bool found;
    } cases[] = {
        {kLibrary, true},
        {withBackslashes(kLibrary), true},
        {std::string(TEST_LIBRARY_FOLDER) + "\\.\\counting.dll", true},
        {"dependency.dll", true},  // bare: from the search folder
        {"counting.dll", false},
        {upper, false},
        {"\\data\\core\\win\\x64\\core.dll", false},
        {TEST_LIBRARY_FOLDER, false},
        {"", false},
    };
    for (const auto& each : cases) {
        const HMODULE library = LoadLibraryA(each.path.c_str());
        EXPECT_EQ(library != nullptr, each.found) << each.path;
        if (library != nullptr) FreeLibrary(library);
    }
}

TEST_F(Win32Library, LastReleaseEndsItAndANewLoadStartsAfresh) {
    const HMODULE first = LoadLibraryA(kLibrary.c_str());
    ASSERT_NE(first, nullptr) << lastErrorText();
    EXPECT_EQ(LoadLibraryA(withBackslashes(kLibrary).c_str()), first);
    EXPECT_EQ(callCount(first), 41);
    EXPECT_TRUE(FreeLibrary(first));
    EXPECT_EQ(callCount(first), 42) << "still referenced";
    EXPECT_TRUE(FreeLibrary(first));
    EXPECT_EQ(journal(), (std::vector<std::string>{"attach", "detach"}));
    EXPECT_FALSE(FreeLibrary(first));
    EXPECT_FALSE(FreeLibrary(nullptr));

    const HMODULE again = LoadLibraryA(kLibrary.c_str());
    EXPECT_EQ(callCount(again), 41) << "the old image stayed in memory";
    FreeLibrary(again);
}

TEST_F(Win32Library, RefusedStartUnloads) {
    Win32Session::setRegistryValue("HKEY_CURRENT_USER\\Test\\Refuse", "", "");
    EXPECT_EQ(LoadLibraryA(kLibrary.c_str()), nullptr);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_DLL_INIT_FAILED});
    EXPECT_EQ(journal(), (std::vector<std::string>{"attach", "detach"}));
    EXPECT_EQ(GetModuleHandleA("counting.dll"), nullptr);
}

}  // namespace
