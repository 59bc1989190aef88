#include <gtest/gtest.h>

#include <max.h>

#include <functional>
#include <string>
#include <vector>

#include "maxhost/HeadlessHost.h"

namespace {

using maxhost::HeadlessHost;

class SceneTest : public ::testing::Test {
  protected:
    ~SceneTest() override { EXPECT_TRUE(host.faults().empty()) << host.faults().front(); }

    INode* make(const char* name, INode* parent = nullptr, const Point3& at = Point3(0, 0, 0)) {
        INode* const node = ip->CreateObjectNode(nullptr, name);
        if (parent != nullptr) parent->AttachChild(node, 0);
        Matrix3 tm = TransMatrix(at);
        node->SetNodeTM(0, tm);
        return node;
    }

    /// The scene as one line: names depth first, children in brackets, selected ones with a star, the place
    /// of each.
    std::string outline(INode* node) {
        std::string text = node->GetName();
        if (node->Selected()) text += "*";
        const Point3 at = node->GetNodeTM(0).GetTrans();
        text += "@" + std::to_string(static_cast<int>(at.x)) + (node->IsHidden() ? "h" : "");
        if (node->NumberOfChildren() == 0) return text;
        text += "(";
        for (int i = 0; i < node->NumberOfChildren(); ++i)
            text += (i > 0 ? " " : "") + outline(node->GetChildNode(i));
        return text + ")";
    }
    std::string outline() { return outline(ip->GetRootNode()); }

    HeadlessHost host;
    Interface* const ip = GetCOREInterface();
};

void hold(const char* name, const std::function<void()>& change) {
    theHold.Begin();
    change();
    std::string text = name;
    theHold.Accept(text.data());
}

TEST_F(SceneTest, AttachAndDetachKeepThePlaceOrTheLocalValue) {
    INode* const a = make("a", nullptr, Point3(10, 0, 0));
    INode* const b = make("b", nullptr, Point3(5, 0, 0));
    a->AttachChild(b, 1);
    EXPECT_EQ(outline(), "Scene Root@0(a@10(b@5))");
    b->Detach(0, 0);
    EXPECT_EQ(outline(), "Scene Root@0(a@10 b@-5)");
    a->AttachChild(b, 0);
    b->AttachChild(a, 1);  // a loop
    a->AttachChild(a, 1);
    a->AttachChild(b, 1);  // where it is already
    a->AttachChild(ip->GetRootNode(), 1);
    EXPECT_EQ(outline(), "Scene Root@0(a@10(b@5))");
}

TEST_F(SceneTest, EveryEditIsUndoneAndRedone) {
    INode* const a = make("a", nullptr, Point3(1, 0, 0));
    INode* const b = make("b", a, Point3(2, 0, 0));
    INode* const c = make("c", a, Point3(3, 0, 0));
    make("d", a, Point3(4, 0, 0));
    ip->SelectNode(c);
    const struct {
        const char* name;
        std::function<void()> edit;
        const char* after;
    } edits[] = {
        {"create", [&] { make("e", a, Point3(9, 0, 0)); }, "Scene Root@0(a@1(b@2 c*@3 d@4 e@9))"},
        {"rename", [&] { b->SetName(std::string("x").data()); }, "Scene Root@0(a@1(x@2 c*@3 d@4))"},
        {"detach", [&] { b->Detach(0, 1); }, "Scene Root@0(a@1(c*@3 d@4) b@2)"},
        {"attach", [&] { b->AttachChild(c, 0); }, "Scene Root@0(a@1(b@2(c*@4) d@4))"},
        {"hide", [&] { c->Hide(TRUE); }, "Scene Root@0(a@1(b@2 c@3h d@4))"},
        {"select", [&] { ip->SelectNode(b, 0); }, "Scene Root@0(a@1(b*@2 c*@3 d@4))"},
        {"select only", [&] { ip->SelectNode(b); }, "Scene Root@0(a@1(b*@2 c@3 d@4))"},
        {"delete leaf", [&] { ip->DeleteNode(c); }, "Scene Root@0(a@1(b@2 d@4))"},
        {"delete parent", [&] { ip->DeleteNode(a, TRUE, TRUE); }, "Scene Root@0(b@2 c*@3 d@4)"},
        {"controller", [&] { b->SetTMController(NewDefaultMatrix3Controller()); },
         "Scene Root@0(a@1(b@1 c*@3 d@4))"},
    };
    const std::string before = "Scene Root@0(a@1(b@2 c*@3 d@4))";
    ASSERT_EQ(outline(), before);
    for (const auto& edit : edits) {
        SCOPED_TRACE(edit.name);
        const ULONG handleOfC = c->GetHandle();
        hold(edit.name, edit.edit);
        EXPECT_EQ(outline(), edit.after);
        for (int round = 0; round < 2; ++round) {
            ASSERT_TRUE(host.undo());
            EXPECT_EQ(outline(), before);
            EXPECT_EQ(ip->GetINodeByHandle(handleOfC), c);
            ASSERT_TRUE(host.redo());
            EXPECT_EQ(outline(), edit.after);
        }
        ASSERT_TRUE(host.undo());
        theHold.Begin();
        edit.edit();
        theHold.Cancel();
        EXPECT_EQ(outline(), before);
    }
}

// Records of a node that was deleted outside a hold must do no harm.
TEST_F(SceneTest, RecordsSurviveUnrecordedChanges) {
    INode* const a = make("a");
    INode* b = nullptr;
    hold("create", [&] { b = make("b"); });
    hold("link", [&] { a->AttachChild(b); });
    hold("rename", [&] { b->SetName(std::string("c").data()); });
    hold("select", [&] { ip->SelectNode(b); });
    ip->DeleteNode(b);
    ip->DeleteNode(a);
    while (host.undo()) {
    }
    while (host.redo()) {
    }
    EXPECT_EQ(outline(), "Scene Root@0");
    hold("create", [&] { b = make("b"); });
    INode* const child = make("child", b);
    host.undo();
    EXPECT_EQ(outline(), "Scene Root@0(child@0)");
    host.redo();
    b->AttachChild(child);
    EXPECT_EQ(outline(), "Scene Root@0(b@0(child@0))");
}

TEST_F(SceneTest, UserPropertiesAreLinesOfText) {
    INode* const a = make("a");
    TSTR value;
    const auto read = [&](const char* key) {
        value = "-";
        a->GetUserPropString(key, value);
        return std::string(value.data());
    };
    a->SetUserPropBuffer("first = 1\r\n  \tSpaced\t=  two words = \"x\" \t\r\nno property\r\nlast=9");
    EXPECT_EQ(read("FIRST"), "1");
    EXPECT_EQ(read("spaced"), "two words = \"x\"");
    EXPECT_EQ(read("last"), "9");
    EXPECT_FALSE(a->UserPropExists("no"));
    hold("set", [&] {
        a->SetUserPropString("first", "one");
        a->SetUserPropString("tag", "<a b=\"1\"/>");
        a->SetUserPropString("last", "");
    });
    TSTR text;
    a->GetUserPropBuffer(text);
    EXPECT_STREQ(text.data(),
                 "first = one\r\n  \tSpaced\t=  two words = \"x\" \t\r\nno property\r\nlast = \r\ntag = <a "
                 "b=\"1\"/>\r\n");
    EXPECT_EQ(read("last"), "");
    EXPECT_TRUE(a->UserPropExists("last"));
    a->SetUserPropString("tag", "one\r\ntwo = 2");
    EXPECT_EQ(read("tag"), "one");
    EXPECT_EQ(read("two"), "2");
    host.undo();
    EXPECT_FALSE(a->UserPropExists("tag"));
}

TEST_F(SceneTest, CloneCopiesTheHierarchy) {
    INode* const a = make("a01", nullptr, Point3(1, 0, 0));
    INode* const b = make("b", a, Point3(2, 0, 0));
    b->SetUserPropString("key", "value");
    b->SetWireColor(0x123456);
    INodeTab list, sources, targets;
    INode* listed[] = {b, a, b};
    list.Append(3, listed);
    Point3 offset(10, 0, 0);
    hold("clone", [&] { EXPECT_TRUE(ip->CloneNodes(list, offset, true, NODE_COPY, &sources, &targets)); });
    EXPECT_EQ(outline(), "Scene Root@0(a01@1(b@2) a02@11(b01@12))");
    ASSERT_EQ(targets.Count(), 2);
    EXPECT_EQ(sources[0], b);
    EXPECT_NE(targets[0]->GetTMController(), b->GetTMController());
    EXPECT_TRUE(targets[0]->UserPropExists("key"));
    EXPECT_EQ(targets[0]->GetWireColor(), 0x123456u);
    host.undo();
    EXPECT_EQ(outline(), "Scene Root@0(a01@1(b@2))");
    Point3 none(0, 0, 0);
    INodeTab instances;
    ip->CloneNodes(list, none, false, NODE_INSTANCE, nullptr, &instances);
    EXPECT_EQ(instances[0]->GetTMController(), b->GetTMController());
}

TEST_F(SceneTest, NamesNumberTheirBase) {
    INode* const first = ip->CreateObjectNode(nullptr);
    INode* const second = ip->CreateObjectNode(nullptr);
    EXPECT_STREQ(first->GetName(), "Node01");
    EXPECT_STREQ(second->GetName(), "Node02");
    second->SetName(first->GetName());
    EXPECT_EQ(ip->GetINodeByName("Node01"), first);
    ip->DeleteNode(first);
    EXPECT_EQ(ip->GetINodeByName("Node01"), second);
}

}  // namespace
