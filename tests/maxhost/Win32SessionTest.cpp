#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>
#include <windows.h>

#include <fstream>
#include <sstream>
#include <stdexcept>

#include "maxhost/win32/Win32Session.h"

namespace {

using maxhost::win32::Win32Session;

class Session : public ::testing::Test {
  protected:
    ~Session() override { Win32Session::reset(); }

    /// What loading a registry file of this text answers: empty when it was taken.
    static std::string loadRegistry(const std::string& text) {
        const std::string path = ::testing::TempDir() + "session_test.reg";
        std::ofstream(path, std::ios::binary) << text;
        std::string error;
        try {
            Win32Session::loadRegistryFile(path);
        } catch (const std::runtime_error& failure) {
            error = std::string(failure.what()).substr(path.size());
        }
        unlink(path.c_str());
        return error;
    }

    static std::string readValue(const char* key, const char* name) {
        HKEY open = nullptr;
        if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, key, 0, KEY_READ, &open) != ERROR_SUCCESS) return "no key";
        char data[1024];
        DWORD size = sizeof data;
        DWORD type = REG_NONE;
        const LSTATUS result =
            RegQueryValueExA(open, name, nullptr, &type, reinterpret_cast<LPBYTE>(data), &size);
        RegCloseKey(open);
        if (result != ERROR_SUCCESS) return "no value";
        return type == REG_SZ && data[size - 1] == '\0' ? std::string(data) : "no text";
    }
};

TEST_F(Session, RegistryFileReadsBack) {
    ASSERT_EQ(loadRegistry("REGEDIT4\r\n\r\n; where it is\r\n"
                           "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Wow6432Node\\Some Maker]\r\n"
                           "\"path\"=\"C:\\\\Program Files\\\\A \\\"B\\\"\"\r\n"
                           "@=\"own\"\r\n"
                           "\"count\"=dword:0000001F\r\n"),
              "");
    EXPECT_EQ(readValue("software\\WOW6432Node\\Some maker\\", "PATH"), "C:\\Program Files\\A \"B\"");
    EXPECT_EQ(readValue("SOFTWARE\\Wow6432Node\\Some Maker", ""), "own");
    EXPECT_EQ(readValue("SOFTWARE\\Wow6432Node\\Some Maker", "count"), "no text");
    EXPECT_EQ(readValue("SOFTWARE\\Wow6432Node", "path"), "no value") << "a key on the way to another";
    EXPECT_EQ(readValue("SOFTWARE\\Wow64", "path"), "no key");
}

TEST_F(Session, BadRegistryFileIsRefusedByLine) {
    const std::string start = "REGEDIT4\n[HKEY_LOCAL_MACHINE\\A]\n";
    const struct {
        std::string text;
        const char* error;
    } cases[] = {
        {"", ":1: the file is empty"},
        {"\xFF\xFEW", ":1: 16-bit text; export the registry in the REGEDIT4 form"},
        {"REGEDIT4\n\"a\"=\"b\"\n", ":2: a value stands before the first section"},
        {"REGEDIT4\n[HKEY_USERS\\A]\n", ":2: unknown root key HKEY_USERS"},
        {"REGEDIT4\n[HKEY_LOCAL_MACHINE\\A\n", ":2: the section's closing bracket is missing"},
        {start + "path=\"b\"\n", ":3: a quoted name is expected"},
        {start + "\"a\"=hex:00\n", ":3: only texts and dwords can be read"},
        {start + "\"a\"=\"C:\\\"\n", ":3: the closing quote is missing"},
        {start + "\"a\"=dword:123456789\n", ":3: a dword has one to eight hexadecimal digits"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(loadRegistry(each.text), each.error) << each.text;
    EXPECT_THROW(Win32Session::loadRegistryFile("no such file"), std::runtime_error);
}

TEST_F(Session, MessageBoxesAreRecordedAnsweredAndPrinted) {
    std::ostringstream printed;
    Win32Session::printMessageBoxesTo(&printed);
    Win32Session::answerNextMessageBox(IDNO);
    EXPECT_EQ(MessageBoxA(nullptr, "Really?", "Ask", MB_YESNO | MB_ICONQUESTION), IDNO);
    EXPECT_EQ(MessageBoxA(nullptr, "Really?", "Ask", MB_YESNO), IDYES);
    EXPECT_EQ(MessageBoxA(nullptr, "one\ntwo", "Bad", MB_ICONERROR), IDOK);
    EXPECT_EQ(printed.str(),
              "[question] Ask\n    Really?\n[message] Ask\n    Really?\n[error] Bad\n    one\n    two\n");
    ASSERT_EQ(Win32Session::messageBoxes().size(), 3u);
    EXPECT_EQ(Win32Session::messageBoxes()[2].caption, "Bad");
    Win32Session::reset();
    EXPECT_TRUE(Win32Session::messageBoxes().empty());
    EXPECT_EQ(MessageBoxA(nullptr, "quiet", "", MB_OK), IDOK);
    EXPECT_EQ(printed.str().find("quiet"), std::string::npos);
}

TEST_F(Session, CreatesOneFolderLevel) {
    const std::string folder = ::testing::TempDir() + "session_test_folder";
    rmdir(folder.c_str());
    EXPECT_FALSE(CreateDirectoryA((folder + "\\below\\").c_str(), nullptr));
    EXPECT_EQ(GetLastError(), DWORD{ERROR_PATH_NOT_FOUND});
    EXPECT_TRUE(CreateDirectoryA((folder + '\\').c_str(), nullptr));
    EXPECT_FALSE(CreateDirectoryA(folder.c_str(), nullptr));
    EXPECT_EQ(GetLastError(), DWORD{ERROR_ALREADY_EXISTS});
    EXPECT_EQ(rmdir(folder.c_str()), 0);
}

}  // namespace
