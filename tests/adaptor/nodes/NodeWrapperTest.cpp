#include <memory>

#include "adaptor/max/ClassIds.h"
#include "adaptor/max/controllers/Conversion.h"
#include "adaptor/max/controllers/ScalarControl.h"
#include "adaptor/max/nodes/CMAXSnapshot.h"
#include "adaptor/max/nodes/HostSpace.h"
#include "tests/support/AdaptorFixture.h"

namespace qvo::zmx::adaptor::max {
namespace {

using core::CoreNode;

class NodeWrapper : public AdaptorFixture {
  protected:
    /// A view, given back at the end.
    using View = std::unique_ptr<CoreNode, void (*)(CoreNode*)>;
    static View view(CoreNode* node) {
        return View(node, [](CoreNode* lent) { lent->destroy(); });
    }

    static Matrix3 placed(float x, float y, float z) {
        Matrix3 matrix(1);
        matrix.SetTrans(Point3(x, y, z));
        return matrix;
    }
};

TEST_F(NodeWrapper, CorePointsAreYUpAndInMeters) {
    struct Unit {
        int type;
        float scale;
        double perMeter;
    };
    const Unit units[] = {{UNITS_INCHES, 1, 1 / 0.0254},
                          {UNITS_FEET, 1, 1 / 0.3048},
                          {UNITS_CENTIMETERS, 1, 100},
                          {UNITS_METERS, 2, 0.5}};
    CMAXNode* const node = makeHelper("a");
    for (const Unit& unit : units) {
        SetMasterUnitInfo(unit.type, unit.scale);
        CoreNode::Snapshot* const snapshot = node->acquireSnapshot(0);
        Matrix4 core = kIdentityMatrix4;
        core.m[3][0] = 1, core.m[3][1] = 2, core.m[3][2] = 3;
        EXPECT_NE(snapshot->setWorldTransform(core), 0);
        const Point3 place = node->hostNode()->GetNodeTM(0).GetTrans();
        EXPECT_NEAR(place.x, 1 * unit.perMeter, 1e-4);
        EXPECT_NEAR(place.y, -3 * unit.perMeter, 1e-4);
        EXPECT_NEAR(place.z, 2 * unit.perMeter, 1e-4);
        const Matrix4 world = snapshot->getWorldTransform();
        const Matrix4 local = snapshot->getLocalTransform();
        for (int i = 0; i < 16; ++i) {
            EXPECT_NEAR(world.m[i / 4][i % 4], core.m[i / 4][i % 4], 1e-6);
            EXPECT_EQ(local.m[i / 4][i % 4], world.m[i / 4][i % 4]) << "the same at the top level";
        }
        node->releaseSnapshot(snapshot);
    }
}

TEST_F(NodeWrapper, LocalTransformsBelowAParentAreInItsSpace) {
    CMAXNode* const parent = makeHelper("parent");
    CMAXNode* const child = makeHelper("child", parent);
    Matrix3 parentPlace = placed(10, 20, 30);
    parentPlace.PreRotateZ(0.5f);
    parent->hostNode()->SetNodeTM(0, parentPlace);
    CoreNode::Snapshot* const snapshot = child->acquireSnapshot(0);
    Matrix4 local = kIdentityMatrix4;
    local.m[3][0] = 5;
    snapshot->setLocalTransform(local);
    const Point3 expected = Point3(5, 0, 0) * parentPlace;
    EXPECT_NEAR(Length(child->hostNode()->GetNodeTM(0).GetTrans() - expected), 0, 1e-4);
    EXPECT_NEAR(snapshot->getLocalTransform().m[3][0], 5, 1e-5);

    Matrix3 flat(1);
    flat.Scale(Point3(1.0f, 1.0f, 0.0f));
    parent->hostNode()->SetNodeTM(0, flat);
    const Matrix4 read = snapshot->getLocalTransform();
    const Matrix3 world = child->hostNode()->GetNodeTM(0);
    EXPECT_FLOAT_EQ(static_cast<float>(read.m[3][0]), world.GetTrans().x) << "a collapsed parent";
    child->releaseSnapshot(snapshot);
}

TEST_F(NodeWrapper, TransformsThatAreNotFiniteAreRefused) {
    CMAXNode* const node = makeHelper("a");
    CoreNode::Snapshot* const snapshot = node->acquireSnapshot(0);
    for (const double bad : {std::nan(""), HUGE_VAL, 1e300}) {
        Matrix4 transform = kIdentityMatrix4;
        transform.m[3][1] = bad;
        EXPECT_EQ(snapshot->setWorldTransform(transform), 0);
        EXPECT_EQ(snapshot->setLocalTransform(transform), 0);
    }
    EXPECT_TRUE(isFinite(node->hostNode()->GetNodeTM(0)));
    node->releaseSnapshot(snapshot);
}

TEST_F(NodeWrapper, SnapshotsAreReusedOnceReleased) {
    CMAXNode* const node = makeHelper("a");
    CoreNode::Snapshot* const first = node->acquireSnapshot(1);
    CoreNode::Snapshot* const second = node->acquireSnapshot(2);
    EXPECT_NE(first, second);
    EXPECT_DOUBLE_EQ(second->getTime(), 2);
    node->releaseSnapshot(first);
    EXPECT_EQ(node->acquireSnapshot(3), first);
    node->releaseSnapshot(nullptr);

    INode* const hostNode = node->hostNode();
    node->deleteNode(false);
    EXPECT_NE(log().find("Encountered still acquired snapshot"), std::string::npos);
    Matrix4 place = kIdentityMatrix4;
    place.m[3][0] = 2;
    EXPECT_NE(first->setWorldTransform(place), 0) << "what is lent outlives the wrapper";
    EXPECT_NEAR(second->getWorldTransform().m[3][0], 2, 1e-6);
    ip().DeleteNode(hostNode, TRUE, FALSE);
    EXPECT_EQ(first->setWorldTransform(place), 0);
    EXPECT_DOUBLE_EQ(first->getWorldTransform().m[3][0], 0);
    delete first;
    delete second;
}

TEST_F(NodeWrapper, ViewsKnowTheirRegisteredWrapper) {
    CMAXNode* const parent = makeHelper("parent");
    CMAXNode* const child = makeHelper("child", parent);
    EXPECT_EQ(parent->getParent(), nullptr) << "the root is no node to the core";
    EXPECT_EQ(parent->getChild(1), nullptr);
    EXPECT_EQ(parent->getChild(-1), nullptr);
    const View seen = view(parent->getChild(0));
    EXPECT_TRUE(seen->isRemoved());
    EXPECT_EQ(seen->name, "child");
    EXPECT_EQ(seen->owner, &owner);
    EXPECT_TRUE(seen->isSameNode(child));
    EXPECT_EQ(seen->claim(&owner, "again"), nullptr) << "wrapped already";
    EXPECT_EQ(child->claim(&owner, "again"), nullptr) << "registered already";

    child->markRemoved();
    TestOwner other("other");
    CoreNode* const claimed = seen->claim(&other, "mine");
    ASSERT_NE(claimed, nullptr);
    EXPECT_EQ(claimed->owner, &other);
    EXPECT_EQ(createdNodes().size(), 2u);
    parent->releaseNode(child);
}

TEST_F(NodeWrapper, OnlyTheOwnersViewDeletes) {
    TestOwner other("other");
    CMAXNode* const mine = makeHelper("mine");
    auto* const foreign = static_cast<CMAXNode*>(adaptor().createHelperNode(&other, "theirs", mine, nullptr));
    CoreNode* const borrowed = mine->getChild(0);
    borrowed->deleteNode(true);  // not through another owner's node
    EXPECT_NE(foreign->hostNode(), nullptr);
    borrowed->destroy();

    CMAXNode* const child = makeHelper("child", mine);
    makeHelper("grandchild", child);
    INode* deleted[] = {child->hostNode()};
    Tab<INode*> table;
    table.Append(1, deleted);
    adaptor().nodesAboutToBeDeleted(&table);
    mine->getChild(1)->deleteNode(true);
    EXPECT_EQ(listener.heard, "") << "the host is deleting it";
    EXPECT_EQ(createdNodes().size(), 4u);
    adaptor().nodesAboutToBeDeleted(nullptr);

    CoreNode* const through = mine->getChild(1);
    CoreNode* const grandchild = through->getChild(0);
    mine->releaseNode(through);
    grandchild->deleteNode(true);  // the view that it came from is gone
    EXPECT_EQ(child->numberOfChildren(), 0);
    mine->getChild(1)->deleteNode(true);
    EXPECT_EQ(mine->numberOfChildren(), 1);
    EXPECT_EQ(createdNodes().size(), 2u) << "the registered wrappers went with the nodes";
    EXPECT_EQ(listener.heard, "removed removed ");
}

TEST_F(NodeWrapper, ADeadHostNodeAnswersEveryOperation) {
    CMAXNode* const node = makeHelper("a");
    CMAXNode* const other = makeHelper("b");
    ip().DeleteNode(node->hostNode(), TRUE, FALSE);
    const CMAXNode nothing(nullptr, nullptr);
    for (CMAXNode* const dead : {node, const_cast<CMAXNode*>(&nothing)}) {
        std::string text = "x";
        for (const int id : {10, 11, 17, 31, 32, 37, 57, 99})  // as cores are compiled with them
            dead->extension(id, id == 32 ? static_cast<void*>(&text) : static_cast<CoreNode*>(other));
        EXPECT_EQ(dead->extension(CoreNode::kCloneUnder, nullptr), 0);
        EXPECT_EQ(dead->getExtensions(), (std::vector<unsigned int>{10, 11, 17, 37, 31, 32}));
        EXPECT_FALSE(dead->supportsExtension(CoreNode::kConvertController));
        dead->show();
        dead->hide();
        dead->select();
        EXPECT_FALSE(dead->isVisible());
        EXPECT_EQ(dead->getParent(), nullptr);
        EXPECT_EQ(dead->getChild(0), nullptr);
        EXPECT_EQ(dead->numberOfChildren(), 0);
        dead->releaseNode(nullptr);
        dead->addAnnotation("note");
        EXPECT_EQ(dead->claim(&owner, "x"), nullptr);
        EXPECT_EQ(dead->acquireSnapshot(0), nullptr);
        EXPECT_EQ(dead->acquireHelperSnapshot(), nullptr);
        EXPECT_EQ(dead->acquireMeshSnapshot(0), nullptr);
        EXPECT_EQ(dead->acquireLensSnapshot(0), nullptr);
        EXPECT_EQ(dead->acquireShapeSnapshot(0), nullptr);
        EXPECT_FALSE(dead->isSameNode(other));
        EXPECT_FALSE(dead->isSameNode(nullptr));
        EXPECT_EQ(dead->setParent(other), 0);
        EXPECT_EQ(dead->setParent(nullptr), 0);
        dead->clearAnimationFrom(0);
        dead->setName("x");
        EXPECT_EQ(dead->getName(), "");
        EXPECT_EQ(dead->cloneNode(true), nullptr);
    }
    EXPECT_EQ(other->setParent(node), 0);
    EXPECT_NE(log().find("Invalid parent node"), std::string::npos);
    node->deleteNode(true);
    EXPECT_EQ(createdNodes().size(), 1u);
}

TEST_F(NodeWrapper, SelectionBatchesAddAndSingleSelectionsReplace) {
    CMAXNode* const a = makeHelper("a");
    CMAXNode* const b = makeHelper("b");
    a->select();
    b->select();
    EXPECT_EQ(selection(), std::vector<std::string>{"tool_b"});
    EXPECT_EQ(host.undoNames(), (std::vector<std::string>{"Select", "Select"}));
    EXPECT_EQ(a->extension(CoreNode::kOpenSelectionBatch, nullptr), 1);
    EXPECT_EQ(b->extension(CoreNode::kOpenSelectionBatch, nullptr), 0) << "one batch for all wrappers";
    a->select();
    b->select();
    EXPECT_EQ(selection(), (std::vector<std::string>{"tool_a", "tool_b"}));
    EXPECT_EQ(host.undoNames().size(), 2u);
    EXPECT_EQ(a->extension(CoreNode::kCloseSelectionBatch, nullptr), 1);
    EXPECT_EQ(a->extension(CoreNode::kCloseSelectionBatch, nullptr), 0);
    a->extension(CoreNode::kOpenSelectionBatch, nullptr);
    adaptor().sceneClosed();
    const View fresh = view(new CMAXNode(nullptr, ip().GetINodeByName("tool_a")));
    EXPECT_EQ(fresh->extension(CoreNode::kCloseSelectionBatch, nullptr), 0)
        << "a closing scene ends the batch";
}

TEST_F(NodeWrapper, RenamesAsOneUndoStep) {
    CMAXNode* const node = makeHelper("a");
    std::string label = "renamed";
    EXPECT_EQ(node->extension(CoreNode::kRenameUndoable, &label), 0);
    EXPECT_EQ(node->getName(), "renamed");
    EXPECT_EQ(node->name, "a");
    EXPECT_EQ(host.undoNames(), std::vector<std::string>{"NODE_SETLABEL"});
    host.undo();
    EXPECT_EQ(node->getName(), "tool_a");
    node->setName(std::string(3000, 'n'));
    EXPECT_EQ(node->getName(), std::string(1024, 'n'));
}

TEST_F(NodeWrapper, ClearsKeysAfterATimeUnlessItIsDrivenNoMore) {
    CMAXNode* const node = makeHelper("a");
    AnimateOn();
    for (const int frame : {0, 10, 20, 30}) {
        Matrix3 place = placed(static_cast<float>(frame), 0, 0);
        node->hostNode()->SetNodeTM(frame * 160, place);
    }
    AnimateOff();
    node->clearAnimationFrom(10 / 30.0 + 1e-9);
    EXPECT_EQ(node->hostNode()->GetTMController()->NumKeys(), 2) << "a key at the time itself stays";
    node->extension(CoreNode::kStopDriving, nullptr);
    EXPECT_FALSE(isTransformControl(node->hostNode()->GetTMController()));
    node->clearAnimationFrom(0);
    EXPECT_NEAR(node->hostNode()->GetNodeTM(1600).GetTrans().x, 10, 1e-3);
}

TEST_F(NodeWrapper, ConvertsParametersAlongWithTheTransform) {
    const Class_ID boxClass(BOXOBJ_CLASS_ID, 0);
    auto* const box = static_cast<Object*>(ip().CreateInstance(GEOMOBJECT_CLASS_ID, boxClass));
    INode* const boxNode = ip().CreateObjectNode(box);
    auto* const node = new CMAXNode(&owner, "box", nullptr, boxNode);  // the registry's
    const auto lengthIsOurs = [box] {
        return static_cast<Control*>(box->GetReference(0))->ClassID() == kScalarControlClassId;
    };
    for (const int id : {CoreNode::kConvertController, CoreNode::kStopDriving}) {
        box->ReplaceReference(0, new ScalarControl);
        node->extension(id, nullptr);
        EXPECT_TRUE(lengthIsOurs()) << "the node's transform is the host's";
        installTransformControl(*boxNode);
        node->extension(id, nullptr);
        EXPECT_FALSE(isTransformControl(boxNode->GetTMController()));
        EXPECT_FALSE(lengthIsOurs()) << id;
    }
}

TEST_F(NodeWrapper, ClonesAreNodesOfTheirOwn) {
    CMAXNode* const root = makeHelper("root");
    makeHelper("child", root);
    Matrix3 place = placed(1, 2, 3);
    root->hostNode()->SetNodeTM(0, place);
    const View single = view(root->cloneNode(false));
    const View tree = view(root->cloneNode(true));
    ASSERT_TRUE(single && tree);
    EXPECT_EQ(single->numberOfChildren(), 0);
    EXPECT_EQ(tree->numberOfChildren(), 1);
    EXPECT_FALSE(tree->isSameNode(root));
    const View under = view(
        reinterpret_cast<CoreNode*>(root->extension(CoreNode::kCloneUnder, static_cast<CoreNode*>(root))));
    const View parent = view(under->getParent());
    EXPECT_TRUE(parent && parent->isSameNode(root));
    root->setName("changed");
    EXPECT_NE(single->getName(), "changed");
}

}  // namespace
}  // namespace qvo::zmx::adaptor::max
