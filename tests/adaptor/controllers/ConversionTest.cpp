#include "adaptor/max/controllers/Conversion.h"

#include <new>

#include "maxhost/src/host/Host.h"
#include "resources/resource.h"
#include "tests/adaptor/controllers/ControllerTest.h"

namespace qvo::zmx::test {
namespace {

/// An object with two groups of animatable parameters, only one of them named "Parameters", and room for one
/// controller in each.
class ParameterObject final : public HelperObject {
  public:
    class Group final : public ReferenceTarget {
      public:
        Control* control = nullptr;

        void DeleteThis() override { delete this; }
        int NumSubs() override { return 2; }
        Animatable* SubAnim(int i) override { return i == 1 ? control : nullptr; }
        int NumRefs() override { return 1; }
        RefTargetHandle GetReference(int /*i*/) override { return control; }
        void SetReference(int /*i*/, RefTargetHandle target) override {
            control = static_cast<Control*>(target);
        }
        RefResult NotifyRefChanged(Interval, RefTargetHandle, PartID&, RefMessage) override {
            return REF_SUCCEED;
        }
    };

    Group* groups[2] = {nullptr, nullptr};

    ParameterObject() {
        for (int i = 0; i < 2; ++i) {
            ReplaceReference(i, new Group);
            groups[i]->ReplaceReference(0, new ScalarControl);
        }
    }
    void DeleteThis() override { delete this; }
    int NumSubs() override { return 3; }
    Animatable* SubAnim(int i) override { return i < 2 ? groups[i] : nullptr; }
    TSTR SubAnimName(int i) override { return i == 1 ? "Other Parameters" : "Parameters"; }
    int NumRefs() override { return 2; }
    RefTargetHandle GetReference(int i) override { return groups[i]; }
    void SetReference(int i, RefTargetHandle target) override { groups[i] = static_cast<Group*>(target); }
    RefResult NotifyRefChanged(Interval, RefTargetHandle, PartID&, RefMessage) override {
        return REF_SUCCEED;
    }
    CreateMouseCallBack* GetCreateMouseCallBack() override { return nullptr; }
    ObjectState Eval(TimeValue /*t*/) override { return ObjectState(this); }
};

/// Makes controllers in place of the host's own that cannot take a value.
class FailingClass final : public PluginClassDesc {
  public:
    class Failing final : public Control {
      public:
        void DeleteThis() override { delete this; }
        SClass_ID SuperClassID() override { return CTRL_MATRIX3_CLASS_ID; }
        void GetValue(TimeValue, void*, Interval&, GetSetMethod) override {}
        void SetValue(TimeValue, void*, int, GetSetMethod) override { throw std::bad_alloc(); }
        void Copy(Control*) override {}
        RefResult NotifyRefChanged(Interval, RefTargetHandle, PartID&, RefMessage) override {
            return REF_SUCCEED;
        }
    };

    void* Create(BOOL /*loading*/) override { return new Failing; }
    const TCHAR* ClassName() override { return "Failing"; }
    SClass_ID SuperClassID() override { return CTRL_MATRIX3_CLASS_ID; }
    Class_ID ClassID() override { return Class_ID(PRS_CONTROL_CLASS_ID, 0); }
};

class Conversion : public ControllerTest {
  protected:
    INode& node() { return *node_; }
    TransformControl& install() { return *installTransformControl(node()); }
    Control& controlOf(int group) { return *object_->groups[group]->control; }

    /// Bakes three keys into the node's controller.
    void bakeNode() {
        animated([&] {
            for (const TimeValue t : {100, 200, 450})
                setWorld(install(), t, pose(0.01f * static_cast<float>(t), 2, Point3(t, 1, 2)));
        });
    }

  private:
    ParameterObject* object_ = new ParameterObject;
    INode* node_ = GetCOREInterface()->CreateObjectNode(object_);
};

const Class_ID kPrs(PRS_CONTROL_CLASS_ID, 0);
const Class_ID kLinearFloat(LININTERP_FLOAT_CLASS_ID, 0);

TEST_F(Conversion, InstallingKeepsTheNodesPlace) {
    Matrix3 place = pose(1, 2, Point3(3, 4, 5));
    INode* const parent = GetCOREInterface()->CreateObjectNode(new ParameterObject);
    parent->SetNodeTM(0, place);
    parent->AttachChild(&node(), 1);
    Matrix3 world = pose(-1, 0.5f, Point3(9, 9, 9));
    node().SetNodeTM(0, world);
    AnimateOn();
    TransformControl* const control = installTransformControl(node());
    AnimateOff();
    ASSERT_TRUE(isTransformControl(node().GetTMController()));
    EXPECT_TRUE(node().GetNodeTM(0).Equals(world, 1e-4f));
    EXPECT_TRUE(control->keys().empty());
    EXPECT_EQ(installTransformControl(node()), control) << "installed once";
}

TEST_F(Conversion, ToPrsKeepsTheWorldTransformAtEveryKey) {
    bakeNode();
    std::vector<Matrix3> before;
    for (const TimeValue t : {100, 200, 450})
        before.push_back(node().GetNodeTM(t));
    convertNodeTransform(node());
    Control* const prs = node().GetTMController();
    ASSERT_EQ(prs->ClassID(), kPrs);
    ASSERT_EQ(prs->GetPositionController()->NumKeys(), 3) << "intended: no extra key at time 0";
    for (int i = 0; i < 3; ++i) {
        const TimeValue t = prs->GetPositionController()->GetKeyTime(i);
        EXPECT_TRUE(node().GetNodeTM(t).Equals(before[static_cast<std::size_t>(i)], 1e-4f)) << t;
    }
    EXPECT_FALSE(Animating());
    ASSERT_EQ(host.undoNames(), std::vector<std::string>{"Convert to PRS controller"});
    EXPECT_TRUE(host.undo());
    ASSERT_TRUE(isTransformControl(node().GetTMController()));
    EXPECT_EQ(install().keys().size(), 3);
    EXPECT_TRUE(host.redo());
    EXPECT_EQ(node().GetTMController()->ClassID(), kPrs);
    convertNodeTransform(node());
    EXPECT_EQ(host.undoNames().size(), 1u) << "not ours any more";
}

TEST_F(Conversion, WithoutKeysTheValueGoesOver) {
    setWorld(install(), 0, pose(1, 2, Point3(3, 4, 5)));
    AnimateOn();
    convertNodeTransform(node());
    EXPECT_TRUE(Animating()) << "the user's mode comes back";
    AnimateOff();
    EXPECT_EQ(node().GetTMController()->GetPositionController()->NumKeys(), 0);
    EXPECT_TRUE(node().GetNodeTM(77).Equals(pose(1, 2, Point3(3, 4, 5)), 1e-4f));
}

TEST_F(Conversion, ScalarsOfTheParametersGroups) {
    bake(static_cast<ScalarControl&>(controlOf(0)), {10, 20});
    convertNodeScalars(node());
    ASSERT_EQ(controlOf(0).ClassID(), kLinearFloat);
    EXPECT_EQ(controlOf(1).ClassID(), kScalarControlClassId);
    ASSERT_EQ(controlOf(0).NumKeys(), 3) << "one more, at time 0";
    for (const auto& [t, value] : {std::pair{0, 10.0f}, {10, 10.0f}, {15, 15.0f}, {20, 20.0f}})
        EXPECT_EQ(valueAt(controlOf(0), t), value);
    EXPECT_EQ(host.undoNames(), std::vector<std::string>{"Convert to Scalar controller"});
}

TEST_F(Conversion, InsideAHoldItAcceptsNothing) {
    install();
    hold([&] {
        convertNodeTransform(node());
        convertNodeScalars(node());
        EXPECT_TRUE(theHold.Holding());
    });
    EXPECT_EQ(host.undoNames(), std::vector<std::string>{"edit"});
}

TEST_F(Conversion, AClassThatTheHostCannotMakeOrFillLeavesEverythingAsItWas) {
    maxhost::ClassDirectory& classes = maxhost::Host::instance().classes();
    ClassDesc* const prsClass = classes.find(CTRL_MATRIX3_CLASS_ID, kPrs);
    bakeNode();
    classes.remove(prsClass);
    convertNodeTransform(node());
    FailingClass failing;
    classes.add(&failing);
    convertNodeTransform(node());
    classes.remove(&failing);
    classes.add(prsClass);
    EXPECT_EQ(install().keys().size(), 3);
    EXPECT_FALSE(theHold.Holding());
    EXPECT_TRUE(host.undoNames().empty());

    Control* const prs = NewDefaultMatrix3Controller();
    node().SetTMController(prs);
    classes.remove(&transformClass);
    EXPECT_EQ(installTransformControl(node()), nullptr);
    EXPECT_EQ(node().GetTMController(), prs);
}

TEST_F(Conversion, AllInUseButNotWhatOnlyUndoKeepsAlive) {
    INode* const other = GetCOREInterface()->CreateObjectNode(new ParameterObject);
    installTransformControl(*other);
    bakeNode();
    TransformControl& replaced = install();
    hold([&] { node().SetTMController(NewDefaultMatrix3Controller()); });
    convertAllTransformControls();
    convertAllScalarControls();
    EXPECT_EQ(other->GetTMController()->ClassID(), kPrs);
    EXPECT_EQ(controlOf(0).ClassID(), kLinearFloat);
    EXPECT_EQ(controlOf(1).ClassID(), kLinearFloat);
    EXPECT_FALSE(replaced.HasDependents());
    while (host.undo()) {
    }
    EXPECT_EQ(&install(), &replaced);
    EXPECT_EQ(replaced.keys().size(), 3);
}

/// Without an undo list each conversion ends the old controller's life at once.
TEST_F(Conversion, AllWhileUndoIsDisabled) {
    install();
    theHold.DisableUndo();
    convertAllTransformControls();
    convertAllScalarControls();
    theHold.EnableUndo();
    EXPECT_EQ(ControlListEntry<TransformControl>::last(), nullptr);
    EXPECT_EQ(ControlListEntry<ScalarControl>::last(), nullptr);
}

/// Each conversion is an entry of its own; the entries that fall out take what only they kept alive with
/// them.
TEST_F(Conversion, AllWhileTheUndoListRunsOver) {
    install();
    hold([&] { node().SetTMController(NewDefaultMatrix3Controller()); });
    std::vector<INode*> nodes;
    for (int i = 0; i < 30; ++i) {
        nodes.push_back(GetCOREInterface()->CreateObjectNode(new ParameterObject));
        installTransformControl(*nodes.back());
    }
    convertAllTransformControls();
    for (INode* const each : nodes)
        EXPECT_EQ(each->GetTMController()->ClassID(), kPrs);
}

TEST_F(Conversion, ByTheButtonInTheMotionPanel) {
    bakeNode();
    GetCOREInterface()->SelectNode(&node());
    host.setTaskMode(TASK_MODE_MOTION);
    EXPECT_EQ(install().pageInterface(), GetCOREInterface());
    host.setTaskMode(TASK_MODE_CREATE);
    EXPECT_EQ(install().pageInterface(), nullptr);
    EXPECT_FALSE(host.pressButton(IDC_CONVERT_TO_PRS)) << "the page is gone";
    host.setTaskMode(TASK_MODE_MOTION);
    EXPECT_TRUE(host.pressButton(IDC_CONVERT_TO_PRS));
    EXPECT_EQ(node().GetTMController()->ClassID(), kPrs);
    EXPECT_EQ(host.taskMode(), TASK_MODE_MOTION);
    EXPECT_FALSE(host.pressButton(IDC_CONVERT_TO_PRS)) << "the new controller has no page";
}

}  // namespace
}  // namespace qvo::zmx::test
