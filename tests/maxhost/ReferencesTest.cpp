#include "tests/maxhost/HostFixture.h"
#include "tests/maxhost/TestTarget.h"

namespace maxhost::test {
namespace {

class ReferencesTest : public HostFixture {
  protected:
    void TearDown() override {
        undo.reset();
        for (TestTarget* const object : owned)
            object->DeleteMe();
        EXPECT_EQ(TestTarget::alive, 0) << "objects left behind";
        HostFixture::TearDown();
    }

    /// An object that the test keeps alive until its end.
    TestTarget& keep(int references = 0) {
        owned.push_back(new TestTarget(references));
        owned.back()->SetAFlag(A_LOCK_TARGET);
        return *owned.back();
    }

    std::vector<TestTarget*> owned;
};

TEST_F(ReferencesTest, MessagesTravelThroughDependents) {
    TestTarget &source = keep(), &middle = keep(2), &stopper = keep(1), &other = keep(1), &top = keep(3);
    middle.ReplaceReference(0, &source);
    middle.ReplaceReference(1, &source);
    stopper.ReplaceReference(0, &source);
    other.ReplaceReference(0, &source);
    top.ReplaceReference(0, &middle);
    top.ReplaceReference(1, &stopper);
    top.ReplaceReference(2, &other);
    middle.partToAdd = PART_TM;
    stopper.answer = REF_STOP;
    other.superClass = HELPER_CLASS_ID;

    source.NotifyDependents(FOREVER, PART_GEOM, REFMSG_CHANGE);
    EXPECT_EQ(middle.count(REFMSG_CHANGE), 1) << "once, however many references";
    ASSERT_EQ(top.count(REFMSG_CHANGE), 2) << "not through the one that stops it";
    EXPECT_EQ(top.heard.at(0).sender, &middle);
    EXPECT_EQ(top.heard.at(0).part, PART_GEOM | PART_TM);
    EXPECT_EQ(top.heard.at(1).part, PART_GEOM);

    source.NotifyDependents(FOREVER, PART_GEOM, REFMSG_CHANGE, HELPER_CLASS_ID);
    EXPECT_EQ(middle.count(REFMSG_CHANGE), 1);
    EXPECT_EQ(other.count(REFMSG_CHANGE), 2);
    source.NotifyDependents(FOREVER, PART_GEOM, REFMSG_CHANGE, NOTIFY_ALL, FALSE);
    EXPECT_EQ(top.count(REFMSG_CHANGE), 2);
}

TEST_F(ReferencesTest, DependentsMayComeAndGoDuringAMessage) {
    TestTarget &source = keep(), &first = keep(1), &second = keep(1), &late = keep(1);
    first.ReplaceReference(0, &source);
    second.ReplaceReference(0, &source);
    first.onMessage = [&](RefMessage message) {
        if (message != REFMSG_CHANGE) return;
        second.DeleteReference(0);
        late.ReplaceReference(0, &source);
    };
    source.NotifyDependents(FOREVER, PART_ALL, REFMSG_CHANGE);
    EXPECT_EQ(second.count(REFMSG_CHANGE), 0);
    EXPECT_EQ(late.count(REFMSG_CHANGE), 0);
    EXPECT_EQ(first.count(REFMSG_CHANGE), 1);
}

TEST_F(ReferencesTest, LoopsAndBadIndicesAreRefused) {
    TestTarget &a = keep(1), &b = keep(1), &c = keep(1);
    EXPECT_EQ(a.ReplaceReference(0, &b), REF_SUCCEED);
    EXPECT_EQ(b.ReplaceReference(0, &c), REF_SUCCEED);
    EXPECT_EQ(c.ReplaceReference(0, &a), REF_FAIL);
    EXPECT_EQ(c.ReplaceReference(0, &c), REF_FAIL);
    EXPECT_EQ(c.GetReference(0), nullptr);
    EXPECT_EQ(a.ReplaceReference(1, &c), REF_FAIL);
    EXPECT_EQ(a.ReplaceReference(-1, &c), REF_FAIL);
}

TEST_F(ReferencesTest, TheLastStrongReferenceKeepsAlive) {
    TestTarget &strong = keep(1), &weak = keep(1);
    weak.strong = false;
    auto* const target = new TestTarget;
    strong.ReplaceReference(0, target);
    weak.ReplaceReference(0, target);
    EXPECT_EQ(TestTarget::alive, 3);
    strong.DeleteReference(0);
    EXPECT_EQ(TestTarget::alive, 2);
    EXPECT_EQ(weak.GetReference(0), nullptr);
    EXPECT_EQ(weak.count(REFMSG_TARGET_DELETED), 1);
}

struct Fate {
    const char* name;
    bool accept;  ///< else cancel
    const char* after;
    bool newStays;
};

class ReplacedInHold : public ReferencesTest, public ::testing::WithParamInterface<Fate> {};

/// A target is replaced inside a hold: whatever happens then, one of the two is left and the other is gone at
/// the end.
TEST_P(ReplacedInHold, LeavesExactlyOneBehind) {
    const Fate& fate = GetParam();
    TestTarget& maker = keep(1);
    auto* const former = new TestTarget;
    maker.ReplaceReference(0, former);

    theHold.Begin();
    auto* const fresh = new TestTarget;
    maker.ReplaceReference(0, fresh);
    EXPECT_TRUE(former->TestAFlag(A_IS_DELETED));
    EXPECT_EQ(TestTarget::alive, 3) << "a deleted object lives on in the record";
    if (fate.accept)
        accept();
    else
        theHold.Cancel();
    for (const char* step = fate.after; *step != '\0'; ++step) {
        if (*step == 'u') undo.undo();
        if (*step == 'r') undo.redo();
    }
    TestTarget* const wanted = fate.newStays ? fresh : former;
    EXPECT_EQ(maker.GetReference(0), wanted);
    EXPECT_FALSE(wanted->TestAFlag(A_IS_DELETED));
    undo.flush();
    EXPECT_EQ(TestTarget::alive, 2);
    EXPECT_EQ(maker.GetReference(0), wanted);
}

const Fate kFates[] = {{"Accepted", true, "", true},
                       {"Undone", true, "u", false},
                       {"Redone", true, "ur", true},
                       {"UndoneAgain", true, "uru", false},
                       {"Cancelled", false, "", false}};
INSTANTIATE_TEST_SUITE_P(References, ReplacedInHold, ::testing::ValuesIn(kFates),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(ReferencesTest, DeletionIsUndoneWithAllReferences) {
    TestTarget &maker = keep(2), &part = keep();
    maker.forgetsDeleted = true;
    auto* const target = new TestTarget(1);
    maker.ReplaceReference(0, target);
    maker.ReplaceReference(1, target);
    target->ReplaceReference(0, &part);

    theHold.Begin();
    target->DeleteMe();
    target->DeleteMe();
    accept();
    EXPECT_EQ(maker.GetReference(0), nullptr);
    EXPECT_FALSE(part.HasDependents());
    undo.undo();
    EXPECT_EQ(maker.GetReference(0), target);
    EXPECT_EQ(maker.GetReference(1), target);
    EXPECT_EQ(target->GetReference(0), &part);
    undo.redo();
    EXPECT_EQ(TestTarget::alive, 3);
    undo.flush();
    EXPECT_EQ(TestTarget::alive, 2);
}

TEST_F(ReferencesTest, TransferMovesEveryIndexAndIsUndoable) {
    TestTarget &maker = keep(3), &second = keep(1), &bystander = keep();
    auto* const former = new TestTarget;
    maker.ReplaceReference(0, former);
    maker.ReplaceReference(1, &bystander);
    maker.ReplaceReference(2, former);
    second.ReplaceReference(0, former);

    theHold.Begin();
    auto* const fresh = new TestTarget;
    EXPECT_EQ(fresh->TransferReferences(former, TRUE), REF_SUCCEED);
    accept();
    EXPECT_EQ(maker.GetReference(0), fresh);
    EXPECT_EQ(maker.GetReference(1), &bystander);
    EXPECT_EQ(maker.GetReference(2), fresh);
    EXPECT_EQ(second.GetReference(0), fresh);
    EXPECT_EQ(second.count(REFMSG_CHANGE), 1);
    undo.undo();
    EXPECT_EQ(maker.GetReference(2), former);
    EXPECT_EQ(second.GetReference(0), former);
    undo.flush();
    EXPECT_EQ(TestTarget::alive, 4) << "the new target, unknown to anybody, goes";
}

TEST_F(ReferencesTest, ClonesShareWhatWasShared) {
    TestTarget &root = keep(2), &branch = keep(1), &leaf = keep();
    root.ReplaceReference(0, &branch);
    root.ReplaceReference(1, &leaf);
    branch.ReplaceReference(0, &leaf);

    DefaultRemapDir remap;
    auto* const clone = static_cast<TestTarget*>(remap.CloneRef(&root));
    RefTargetHandle const leafClone = clone->GetReference(1);
    EXPECT_EQ(clone->GetReference(0)->GetReference(0), leafClone);
    EXPECT_NE(leafClone, &leaf);
    EXPECT_EQ(TestTarget::alive, 6);
    clone->DeleteMe();
    EXPECT_EQ(TestTarget::alive, 3);
}

TEST_F(ReferencesTest, WrongDestructionIsReportedAndLeavesNothingDangling) {
    TestTarget &maker = keep(1), &target = keep();
    auto* const rudeTarget = new TestTarget;
    maker.ReplaceReference(0, rudeTarget);
    rudeTarget->DeleteThis();
    EXPECT_EQ(maker.GetReference(0), nullptr);
    auto* const rudeMaker = new TestTarget(1);
    rudeMaker->ReplaceReference(0, &target);
    rudeMaker->DeleteThis();
    EXPECT_FALSE(target.HasDependents());
    EXPECT_EQ(takeFaults().size(), 2u);
}

}  // namespace
}  // namespace maxhost::test
