#include <cstdio>
#include <fstream>

#include "tests/support/AdaptorFixture.h"

namespace qvo::zmx::adaptor::max {
namespace {

class SceneMerge : public AdaptorFixture {
  protected:
    ~SceneMerge() override { std::remove(file.c_str()); }

    /// Writes a scene with these helpers and leaves an empty one.
    void writeScene(const std::vector<std::string>& names) {
        for (const std::string& name : names)
            makeHelper(name);
        ASSERT_TRUE(host.save(file)) << host.lastMessage();
        adaptor().letGoOfCore();
        host.reset();
    }

    /// Names of the nodes that arrive.
    std::vector<std::string> merge(const std::string& path) {
        std::vector<core::CoreNode*> nodes;
        util::ReturnInto<std::vector<core::CoreNode*>> sink(nodes);
        adaptor().mergeFile(path, sink);
        std::vector<std::string> names;
        for (core::CoreNode* const node : nodes) {
            EXPECT_TRUE(node->isRemoved());
            EXPECT_EQ(node->owner, nullptr);
            names.push_back(node->getName());
            node->destroy();
        }
        return names;
    }

    const std::string file = ::testing::TempDir() + "merge_test.zms";
};

TEST_F(SceneMerge, NewNodesArriveAndTheSelectionStays) {
    writeScene({"a", "b"});
    makeHelper("x");
    makeHelper("y")->select();
    EXPECT_EQ(merge(file), (std::vector<std::string>{"tool_a", "tool_b"}));
    EXPECT_EQ(selection(), std::vector<std::string>{"tool_y"});
    EXPECT_EQ(merge(file).size(), 2u) << "the same file again brings other nodes";
    EXPECT_EQ(ip().GetRootNode()->NumberOfChildren(), 6);
    EXPECT_EQ(createdNodes().size(), 2u) << "views are not registered";
}

TEST_F(SceneMerge, AnOpenGroupRestsMeanwhile) {
    writeScene({"a"});
    CMAXNode* const node = makeHelper("x");
    adaptor().beginUndoGroup("group");
    node->setName("before");
    EXPECT_EQ(merge(file).size(), 1u);
    EXPECT_EQ(host.undoNames(), std::vector<std::string>{"tmp"});
    node->setName("after");
    adaptor().endUndoGroup();
    EXPECT_EQ(host.undoNames(), (std::vector<std::string>{"group", "tmp"}));
    host.undo();
    EXPECT_EQ(node->getName(), "before");
    EXPECT_EQ(ip().GetRootNode()->NumberOfChildren(), 2) << "a merge is no part of a group";
}

TEST_F(SceneMerge, TheHostsHoldIsAsDeepAfterwardsAsBefore) {
    writeScene({"a"});
    theHold.Begin();
    theHold.Begin();
    adaptor().beginUndoGroup("joins the host's hold");
    EXPECT_EQ(merge(file).size(), 1u);
    EXPECT_EQ(theHold.GetBeginDepth(), 2);
    theHold.Suspend();
    EXPECT_EQ(merge(file).size(), 1u);
    EXPECT_EQ(theHold.GetBeginDepth(), 2);
    theHold.Resume();
    adaptor().endUndoGroup();
    theHold.Cancel();
    theHold.Cancel();
}

TEST_F(SceneMerge, RefusedFilesLeaveEverythingAsItWas) {
    writeScene({"a"});
    makeHelper("x")->select();
    std::ofstream(file, std::ios::binary | std::ios::trunc) << "no scene";
    const std::string refused = "Merge failed. The scene could not be merged successfully";
    const std::string corrupt = "Merge failed, possible corrupt scene file: " + file;
    const struct {
        std::string path, logged, notLogged;
    } rows[] = {
        {file + ".missing", refused, corrupt}, {file, corrupt, "none"}, {std::string(), refused, "none"}};
    for (const auto& row : rows) {
        EXPECT_TRUE(merge(row.path).empty()) << row.path;
        EXPECT_EQ(selection(), std::vector<std::string>{"tool_x"});
        EXPECT_NE(log().find(row.logged), std::string::npos) << row.path;
        EXPECT_EQ(log().find(row.notLogged), std::string::npos) << row.path;
    }
    EXPECT_NE(log().find("Gathering merged nodes"), std::string::npos);
    EXPECT_EQ(ip().GetRootNode()->NumberOfChildren(), 1);
}

}  // namespace
}  // namespace qvo::zmx::adaptor::max
