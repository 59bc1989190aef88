#include <gtest/gtest.h>

#include <max.h>

#include <functional>
#include <random>
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

TEST_F(SceneTest, WorldTransformFollowsParentsAndControllers) {
    INode* const a = make("a", nullptr, Point3(10, 0, 0));
    INode* const b = make("b", a, Point3(15, 0, 0));
    INode* const c = make("c", b, Point3(16, 0, 0));
    Matrix3 moved = TransMatrix(Point3(20, 0, 0));
    moved.PreRotateZ(1.5707963f);
    a->SetNodeTM(0, moved);
    EXPECT_TRUE(c->GetNodeTM(0).GetTrans().Equals(Point3(20, 6, 0), 1e-4f));
    EXPECT_TRUE(b->GetParentTM(0) == a->GetNodeTM(0));
    Interval valid = FOREVER;
    c->GetNodeTM(0, &valid);
    EXPECT_TRUE(valid == FOREVER);

    AnimateOn();
    Matrix3 start = TransMatrix(Point3(0, 0, 0)), end = TransMatrix(Point3(100, 0, 0));
    a->SetNodeTM(0, start);
    a->SetNodeTM(1600, end);
    AnimateOff();
    EXPECT_TRUE(c->GetNodeTM(800).GetTrans().Equals(Point3(56, 0, 0), 1e-3f));
    EXPECT_TRUE(c->GetNodeTM(1600).GetTrans().Equals(Point3(106, 0, 0), 1e-3f));
    valid = FOREVER;
    c->GetNodeTM(800, &valid);
    EXPECT_TRUE(valid == Interval(800, 800));
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

TEST_F(SceneTest, DeletedNodeIsUnknownUntilItComesBack) {
    INode* const a = make("a");
    const ULONG handle = a->GetHandle();
    Control* const controller = a->GetTMController();
    hold("delete", [&] { ip->DeleteNode(a); });
    EXPECT_EQ(ip->GetINodeByHandle(handle), nullptr);
    EXPECT_EQ(ip->GetINodeByName("a"), nullptr);
    EXPECT_TRUE(controller->TestAFlag(A_IS_DELETED));
    host.undo();
    EXPECT_EQ(ip->GetINodeByHandle(handle), a);
    EXPECT_EQ(ip->GetINodeByName("a"), a);
    EXPECT_EQ(a->GetTMController(), controller);
    ip->FlushUndoBuffer();
    ip->DeleteNode(a);
    EXPECT_EQ(ip->GetINodeByHandle(handle), nullptr);
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

// A command that replaces the scene may come while a hold is open, or inside a group of holds.
TEST_F(SceneTest, HoldsSurviveAChangeOfScene) {
    for (const bool insideGroup : {false, true}) {
        if (insideGroup) theHold.SuperBegin();
        theHold.Begin();
        INode* const a = make("a");
        ip->SelectNode(a);
        a->AttachChild(make("b"));
        if (insideGroup) {
            theHold.Accept(0);
            host.reset();
            make("kept");
            theHold.SuperCancel();
        } else {
            host.reset();
            make("kept");
            theHold.Cancel();
        }
        EXPECT_EQ(outline(), insideGroup ? "Scene Root@0(kept@0)" : "Scene Root@0");
    }
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

TEST_F(SceneTest, UsersDeleteIsOneEntry) {
    INode* const a = make("a", nullptr, Point3(1, 0, 0));
    INode* const b = make("b", a, Point3(2, 0, 0));
    make("c", b, Point3(3, 0, 0));
    ip->SelectNode(a);
    ip->SelectNode(b, 0);
    EXPECT_TRUE(host.deleteSelection());
    EXPECT_EQ(outline(), "Scene Root@0(c@3)");
    EXPECT_EQ(host.undoNames(), std::vector<std::string>{"Delete"});
    host.undo();
    EXPECT_EQ(outline(), "Scene Root@0(a*@1(b*@2(c@3)))");
    EXPECT_EQ(ip->GetSelNode(0), a);
    ip->ClearNodeSelection();
    EXPECT_FALSE(host.deleteSelection());
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

// Random recorded edits, undos and redos against the list of outlines that a correct host shows.
TEST_F(SceneTest, RandomEditsAreUndoneStepByStep) {
    std::mt19937 random(20100);
    const auto upTo = [&](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
    const auto anyNode = [&]() -> INode* {
        INode* node = ip->GetRootNode();
        for (int depth = upTo(5); depth > 0 && node->NumberOfChildren() > 0; --depth)
            node = node->GetChildNode(upTo(node->NumberOfChildren()));
        return node == ip->GetRootNode() ? nullptr : node;
    };
    const auto edit = [&] {
        INode* const node = anyNode();
        INode* const other = anyNode();
        const bool room = host.nodeCount() < 40;
        if (node == nullptr || host.nodeCount() < 5) {
            if (room) make("n", other, Point3(upTo(9), 0, 0));
            return;
        }
        std::string name(1, static_cast<char>('a' + upTo(26)));
        Matrix3 tm = TransMatrix(Point3(upTo(50), 0, 0));
        switch (upTo(room ? 9 : 8)) {
            case 0:
                node->SetName(name.data());
                break;
            case 1:
                node->Detach(0, upTo(2));
                break;
            case 2:
                if (other != nullptr) other->AttachChild(node, upTo(2));
                break;
            case 3:
                node->Hide(upTo(2));
                break;
            case 4:
                ip->SelectNode(node, upTo(2));
                break;
            case 5:
                node->SetNodeTM(0, tm);
                break;
            case 6:
                ip->DeleteNode(node, TRUE, upTo(2));
                break;
            case 7:
                node->SetTMController(NewDefaultMatrix3Controller());
                break;
            default:
                make(name.c_str(), other, Point3(upTo(9), 0, 0));
                break;
        }
    };
    const auto state = [&] {
        std::string text = outline() + ", selected";
        for (int i = 0; i < ip->GetSelNodeCount(); ++i)
            text += " " + std::to_string(ip->GetSelNode(i)->GetHandle());
        return text;
    };
    std::vector<std::string> states{state()};
    size_t present = 0;
    for (int step = 0; step < 3000; ++step) {
        const int action = upTo(4);
        if (action == 0 && host.undo()) {
            --present;
        } else if (action == 1 && host.redo()) {
            ++present;
        } else {
            theHold.Begin();
            for (int edits = 1 + upTo(3); edits > 0; --edits)
                edit();
            std::string name = std::to_string(step);
            if (upTo(5) == 0) {
                theHold.Cancel();
            } else {
                theHold.Accept(name.data());
            }
            const std::vector<std::string> names = host.undoNames();
            if (!names.empty() && names.front() == name) {
                states.resize(++present);
                states.push_back(state());
            }
        }
        ASSERT_EQ(state(), states[present]) << "step " << step;
    }
}

TEST_F(SceneTest, DeepHierarchyNeedsNoStack) {
    constexpr int kDepth = 10000;
    INode* node = ip->GetRootNode();
    for (int i = 0; i < kDepth; ++i) {
        INode* const child = ip->CreateObjectNode(nullptr, "deep");
        Matrix3 step = TransMatrix(Point3(1, 0, 0));
        child->SetNodeTM(0, step);
        node->AttachChild(child, 0);
        node = child;
    }
    EXPECT_EQ(node->GetNodeTM(0).GetTrans().x, static_cast<float>(kDepth));
    Matrix3 tm = TransMatrix(Point3(-1, 0, 0));
    INode* const top = ip->GetRootNode()->GetChildNode(0);
    top->SetNodeTM(0, tm);
    EXPECT_EQ(node->GetNodeTM(4800).GetTrans().x, static_cast<float>(kDepth - 2));
    top->AttachChild(node, 1);  // a loop over all of them
    INodeTab list, clones;
    INode* listed = top;
    list.Append(1, &listed);
    Point3 none(0, 0, 0);
    ip->CloneNodes(list, none, true, NODE_COPY, nullptr, &clones);
    EXPECT_EQ(clones.Count(), kDepth);
}

}  // namespace
