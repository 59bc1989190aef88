#include "adaptor/max/controllers/Conversion.h"
#include "adaptor/max/plugin/OptionStore.h"
#include "tests/support/AdaptorFixture.h"

namespace qvo::zmx::adaptor::max {
namespace {

class NodeCreation : public AdaptorFixture {
  protected:
    CMAXNode* makeUndoable(const std::string& name, CMAXNode* parent = nullptr) {
        adaptor().beginUndoGroup("create " + name);
        CMAXNode* const node = makeHelper(name, parent);
        adaptor().endUndoGroup();
        return node;
    }
};

TEST_F(NodeCreation, NamesParentsAndControls) {
    CMAXNode* const parent = makeHelper("hips");
    CMAXNode* const child = makeHelper(std::string(2000, 'x'), parent);
    ASSERT_TRUE(parent && child);
    EXPECT_EQ(parent->name, "hips");
    EXPECT_EQ(parent->getName(), "tool_hips");
    EXPECT_EQ(child->getName(), "tool_" + std::string(1019, 'x'));
    EXPECT_EQ(child->hostNode()->GetParentNode(), parent->hostNode());
    EXPECT_TRUE(isTransformControl(child->hostNode()->GetTMController()));

    UtilityManager::instance().options().setValue(kOptimizedControllerOption, false);
    EXPECT_FALSE(isTransformControl(makeHelper("plain")->hostNode()->GetTMController()));

    EXPECT_EQ(adaptor().findNode(&owner, "tool_hips"), parent);
    EXPECT_EQ(adaptor().findNode(&owner, "tool_Hips"), nullptr);
    EXPECT_EQ(adaptor().findNode(nullptr, "tool_hips"), nullptr);
    EXPECT_EQ(listener.heard, "") << "nobody recorded";
    EXPECT_EQ(createdNodes().size(), 3u);
}

TEST_F(NodeCreation, UndoAndRedoMoveNodeAndWrapperTogether) {
    CMAXNode* const node = makeUndoable("a");
    const std::size_t before = host.nodeCount();
    EXPECT_EQ(listener.heard, "restored ");
    for (int round = 0; round < 2; ++round) {
        ASSERT_TRUE(host.undo());
        EXPECT_TRUE(createdNodes().empty());
        EXPECT_EQ(host.nodeCount(), before - 1);
        EXPECT_EQ(node->hostNode(), nullptr);
        ASSERT_TRUE(host.redo());
        EXPECT_EQ(createdNodes(), std::vector<core::CoreNode*>{node});
        EXPECT_EQ(node->getName(), "tool_a");
    }
    EXPECT_EQ(listener.heard, "restored removed restored removed restored ");
}

TEST_F(NodeCreation, DiscardedWhileUndoneTheWrapperDies) {
    makeUndoable("a");
    ASSERT_TRUE(host.undo());
    ip().FlushUndoBuffer();
    EXPECT_TRUE(createdNodes().empty());
    EXPECT_NE(log().find("Deconstructing node"), std::string::npos);
}

TEST_F(NodeCreation, DeletionIsUndoneWithItsWrapper) {
    CMAXNode* const node = makeUndoable("a");
    listener.heard.clear();
    adaptor().beginUndoGroup("delete");
    node->deleteNode(true);
    adaptor().endUndoGroup();
    EXPECT_TRUE(createdNodes().empty());
    EXPECT_EQ(listener.heard, "") << "who deletes need not be told";
    ASSERT_TRUE(host.undo());
    EXPECT_EQ(createdNodes(), std::vector<core::CoreNode*>{node});
    EXPECT_EQ(listener.heard, "restored ");
    ASSERT_TRUE(host.redo());
    EXPECT_TRUE(createdNodes().empty());
    EXPECT_EQ(host.undoNames().front(), "delete");
    // Both records hold the wrapper: whichever order they go in, it dies once.
    ip().FlushUndoBuffer();
}

TEST_F(NodeCreation, DetachEmptiesTheListAndKeepsTheScene) {
    CMAXNode* const recorded = makeUndoable("recorded");
    CMAXNode* const deleted = makeHelper("deleted");
    makeHelper("plain");
    adaptor().beginUndoGroup("delete");
    deleted->deleteNode(true);
    adaptor().endUndoGroup();
    adaptor().letGoOfCore();
    EXPECT_TRUE(createdNodes().empty());
    EXPECT_EQ(ip().GetRootNode()->NumberOfChildren(), 2);
    EXPECT_EQ(recorded->owner, nullptr);
    EXPECT_EQ(deleted->owner, nullptr) << "only a record holds it";
    listener.heard.clear();
    for (int step = 0; step < 2; ++step)
        ASSERT_TRUE(host.undo());
    ASSERT_TRUE(host.redo());
    EXPECT_EQ(listener.heard, "");
    EXPECT_TRUE(createdNodes().empty()) << "nobody owns the wrapper any more";
}

TEST_F(NodeCreation, AClosedScenesWrappersAreMarkedAndCanBeGivenBack) {
    CMAXNode* const node = makeHelper("a");
    CMAXNode* const forgotten = makeHelper("b");
    adaptor().sceneClosed();
    EXPECT_TRUE(node->isRemoved());
    EXPECT_EQ(node->owner, nullptr);
    EXPECT_TRUE(createdNodes().empty());
    forgotten->releaseNode(node);
}

TEST_F(NodeCreation, TheUsersDeletionTakesTheWrapperAlong) {
    CMAXNode* const node = makeHelper("a");
    INode* deleted[] = {node->hostNode()};
    Tab<INode*> table;
    table.Append(1, deleted);
    theHold.Begin();
    adaptor().nodesAboutToBeDeleted(&table);
    EXPECT_TRUE(adaptor().nodesBeingDeleted().contains(*node->hostNode()));
    adaptor().nodesDeleted();
    EXPECT_TRUE(createdNodes().empty());
    EXPECT_EQ(listener.heard, "removed ");
    EXPECT_NE(node->hostNode(), nullptr) << "the host's own deletion comes next";
    ip().DeleteNode(deleted[0], TRUE, FALSE);
    char name[] = "Delete";
    theHold.Accept(name);
    ASSERT_TRUE(host.undo());
    EXPECT_EQ(createdNodes(), std::vector<core::CoreNode*>{node});
    EXPECT_EQ(listener.heard, "removed restored ");
    EXPECT_NE(node->hostNode(), nullptr);

    node->deleteNode(true);
    EXPECT_EQ(ip().GetRootNode()->NumberOfChildren(), 0) << "the host deletes it no more";
}

TEST_F(NodeCreation, AListenerMayEndItsWrapper) {
    struct Ending : NodeListener {
        void removed(core::CoreNode* node) override { destroys ? node->destroy() : node->deleteNode(true); }
        void restored(core::CoreNode*) override {}
        bool destroys = false;
    } ending;
    for (const bool holding : {false, true})
        for (const bool destroys : {false, true}) {
            ending.destroys = destroys;
            auto* const node = adaptor().createHelperNode(&owner, "a", nullptr, &ending);
            INode* deleted[] = {static_cast<CMAXNode*>(node)->hostNode()};
            Tab<INode*> table;
            table.Append(1, deleted);
            if (holding) theHold.Begin();
            adaptor().nodesAboutToBeDeleted(&table);
            adaptor().nodesDeleted();
            EXPECT_TRUE(createdNodes().empty());
            EXPECT_EQ(ip().GetRootNode()->NumberOfChildren(), 1) << "the host's to delete";
            ip().DeleteNode(deleted[0], TRUE, FALSE);
            char name[] = "Delete";
            if (holding) theHold.Accept(name);
        }
}

TEST_F(NodeCreation, AWrapperThatTheCoreLetGoOfStaysTheCores) {
    CMAXNode* const node = makeUndoable("a");
    node->markRemoved();
    ASSERT_TRUE(host.undo());
    ASSERT_TRUE(host.redo());
    EXPECT_FALSE(adaptor().nodes().contains(*node));
    ASSERT_TRUE(host.undo());
    ip().FlushUndoBuffer();
    EXPECT_TRUE(node->isRemoved()) << "still there";
    node->releaseNode(node);
}

}  // namespace
}  // namespace qvo::zmx::adaptor::max
