#include "tests/maxhost/ObjectsFixture.h"

namespace maxhost::test {

namespace {

/// Names below the node, depth first: heads with a colon, members in brackets, places along X behind.
std::string outline(INode* node) {
    std::string text;
    for (int i = 0; i < node->NumberOfChildren(); ++i) {
        INode* const child = node->GetChildNode(i);
        std::string name = child->GetName();
        if (child->IsGroupMember()) name = "[" + name + "]";
        if (child->IsGroupHead()) name += ":";
        text += name + std::to_string(static_cast<int>(child->GetNodeTM(0).GetTrans().x)) + "(" +
                outline(child) + ")";
    }
    return text;
}

}  // namespace

TEST_F(ObjectsTest, GroupsNestDissolveAndUndo) {
    INode* const root = ip->GetRootNode();
    const char* const names[] = {"a", "b", "c", "d"};
    INode* nodes[4];
    for (int i = 0; i < 4; ++i) {
        nodes[i] = nodeOf(nullptr, names[i]);
        Matrix3 tm = TransMatrix(Point3(10 * i, 0, 0));
        nodes[i]->SetNodeTM(0, tm);
    }
    nodes[1]->AttachChild(nodes[2]);
    const auto select = [&](std::vector<INode*> chosen) {
        ip->ClearNodeSelection();
        for (INode* const each : chosen)
            ip->SelectNode(each, 0);
    };
    std::vector<std::string> states{outline(root)};
    EXPECT_EQ(states.back(), "a0()b10(c20())d30()");

    select({nodes[1], nodes[0], nodes[2]});  // c goes along with b, and is a member as well
    ASSERT_TRUE(host.groupSelection("inner"));
    EXPECT_STREQ(ip->GetSelNode(0)->GetName(), "inner");
    INode* const inner = ip->GetSelNode(0);
    states.push_back(outline(root));
    EXPECT_EQ(states.back(), "d30()inner:5([a]0()[b]10([c]20()))");

    select({inner, nodes[3]});
    ASSERT_TRUE(host.groupSelection());
    states.push_back(outline(root));
    EXPECT_EQ(states.back(), "Group01:17([d]30()[inner]:5([a]0()[b]10([c]20())))");
    ip->SelectNode(inner);
    ASSERT_TRUE(host.ungroupSelection());
    states.push_back(outline(root));
    EXPECT_EQ(states.back(), "Group01:17([d]30()[a]0()[b]10([c]20()))");
    ip->SelectNode(ip->GetINodeByName("Group01"));
    ASSERT_TRUE(host.ungroupSelection());
    states.push_back(outline(root));
    EXPECT_EQ(states.back(), "d30()a0()b10(c20())");

    for (size_t i = states.size() - 1; i-- > 0;) {
        ASSERT_TRUE(host.undo());
        EXPECT_EQ(outline(root), states[i]);
    }
    for (size_t i = 1; i < states.size(); ++i) {
        ASSERT_TRUE(host.redo());
        EXPECT_EQ(outline(root), states[i]);
    }
    select({nodes[0]});
    EXPECT_FALSE(host.ungroupSelection());
    select({});
    EXPECT_FALSE(host.groupSelection());

    ASSERT_TRUE(host.undo());
    reopen();
    EXPECT_EQ(outline(ip->GetRootNode()), states[3]);
}

}  // namespace maxhost::test
