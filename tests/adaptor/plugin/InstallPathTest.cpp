#include "adaptor/max/plugin/InstallPath.h"

#include <gtest/gtest.h>

#include "tests/support/Registry.h"

namespace {

using namespace qvo::zmx::adaptor::max;
using qvo::zmx::test::ProductRegistry;

TEST(InstallPath, KeysNameFoldersOfTheInstallation) {
    ProductRegistry registry;
    registry.set("path", "C:/Zorva\\Animations");
    const struct {
        const char* key;
        const char* folder;
    } cases[] = {
        {"", "C:/Zorva\\Animations/kestrelstudio"},
        {"data", "C:/Zorva\\Animations/kestrelstudio/data"},
        {"elsewhere", "C:/Zorva\\Animations"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(installPath(each.key), each.folder) << each.key;
    EXPECT_EQ(coreFolder(), "C:\\Zorva\\Animations\\kestrelstudio\\data\\core\\win\\x64");
    EXPECT_EQ(logMirrorFile(), "");
}

TEST(InstallPath, WithoutUsableEntryThereIsNoInstallation) {
    EXPECT_EQ(installPath("data"), "");
    EXPECT_EQ(coreFolder(), "\\data\\core\\win\\x64");
    ProductRegistry registry;
    registry.set("path", std::string(1023, 'x'));  // fills the buffer with its final zero
    EXPECT_EQ(installPath("?"), std::string(1023, 'x'));
    registry.set("path", std::string(1024, 'x'));
    EXPECT_EQ(installPath("?"), "");
}

}  // namespace
