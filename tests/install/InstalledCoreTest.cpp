// A core that was built apart, in an installation, with the plug-in as the host loads it.

#include <gtest/gtest.h>

#include <filesystem>

#include "maxhost/HeadlessHost.h"
#include "tests/support/Registry.h"

namespace {

namespace fs = std::filesystem;

TEST(InstalledCore, AttachesAndWorks) {
    const fs::path root = fs::path(ZK_INSTALL_FOLDER) / "installation";
    const fs::path folder = root / "kestrelstudio" / "data" / "core" / "win" / "x64";
    fs::remove_all(root);
    fs::create_directories(folder);
    fs::copy_file(fs::path(ZK_INSTALL_FOLDER) / "minimal_core" / "core.dll", folder / "core.dll");
    qvo::zmx::test::ProductRegistry registry;
    registry.set("path", root.string());

    maxhost::HeadlessHost host;
    ASSERT_TRUE(host.loadPlugin(ZK_PLUGIN)) << host.lastMessage();
    ASSERT_TRUE(host.start()) << host.lastMessage();
    ASSERT_TRUE(host.openUtility("Zorva Kestrel Studio Util")) << "there is none when no core was loaded";
    constexpr int kStartButton = 1046;
    EXPECT_TRUE(host.pressButton(kStartButton));
    EXPECT_EQ(host.nodeCount(), 1u);
    EXPECT_EQ(host.undoNames(), std::vector<std::string>{"Make a marker"});
    EXPECT_TRUE(host.undo());
    EXPECT_EQ(host.nodeCount(), 0u);
    host.exit();
    EXPECT_EQ(host.faults(), std::vector<std::string>());
}

}  // namespace
