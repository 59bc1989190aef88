#include <functional>
#include <sstream>

#include "tests/support/AdaptorFixture.h"

namespace qvo::zmx::adaptor::max {
namespace {

struct GroupCase {
    const char* name;
    bool hostHolds;     ///< the host began a hold of its own before
    const char* calls;  ///< begin NAME, end, cancel, record, suspend, resume, in order
    const char* fate;   ///< what became of the records by then
    std::vector<std::string> entries;
};

const GroupCase kGroupCases[] = {
    {"Single", false, "begin a record end", "", {"a"}},
    {"OutermostNames", false, "begin a begin b record end end", "", {"a"}},
    {"Cancelled", false, "begin a record cancel", "cancelled released ", {}},
    {"InnerCancelMarksOuter",
     false,
     "begin a begin b record cancel record end",
     "cancelled cancelled released released ",
     {}},
    {"HostHoldLeftAlone", true, "begin a record end", "", {}},
    {"CancelIsCarriedOver", true, "begin a cancel accept begin c record end", "cancelled released ", {}},
    {"CancelIsConsumed", false, "begin a record cancel begin b record end", "cancelled released ", {"b"}},
    {"EndedWhileSuspended", false, "begin a record suspend end resume", "", {"a"}},
    {"MismatchedEnd", false, "end begin a record end", "", {"a"}},
    {"NoGroup", false, "record", "released ", {}},
};

class UndoGroupTest : public AdaptorFixture, public ::testing::WithParamInterface<GroupCase> {
  protected:
    void perform(const std::string& call, std::istringstream& calls) {
        std::string name;
        if (call == "begin") {
            calls >> name;
            EXPECT_EQ(adaptor().beginUndoGroup(name), 0);
        } else if (call == "end") {
            adaptor().endUndoGroup();
        } else if (call == "cancel") {
            adaptor().cancelUndoGroup();
        } else if (call == "accept") {
            char hostName[] = "host";
            theHold.Accept(hostName);
        } else if (call == "suspend") {
            theHold.Suspend();
        } else if (call == "resume") {
            theHold.Resume();
        } else {
            const bool recording = adaptor().isUndoRecording();
            EXPECT_EQ(adaptor().addUndoRecord(new TestRecord(fate)), recording ? 0 : 1);
        }
    }
};

TEST_P(UndoGroupTest, ReachesTheHostAsTheTableSays) {
    const GroupCase& row = GetParam();
    if (row.hostHolds) theHold.Begin();
    std::istringstream calls(row.calls);
    for (std::string call; calls >> call;)
        perform(call, calls);
    EXPECT_EQ(theHold.Holding() != 0,
              row.hostHolds && std::string(row.calls).find("accept") == std::string::npos);
    EXPECT_EQ(fate, row.fate);
    EXPECT_EQ(host.undoNames(), row.entries);
    if (theHold.Holding()) theHold.Cancel();
}

INSTANTIATE_TEST_SUITE_P(UndoGroups, UndoGroupTest, ::testing::ValuesIn(kGroupCases),
                         [](const auto& row) { return std::string(row.param.name); });

using UndoServices = AdaptorFixture;

TEST_F(UndoServices, RecordsFollowUndoAndRedoAndDieWithTheHistory) {
    adaptor().beginUndoGroup("edit");
    adaptor().addUndoRecord(new TestRecord(fate));
    adaptor().endUndoGroup();
    EXPECT_TRUE(adaptor().undoLastHostOperation());
    host.redo();
    EXPECT_EQ(fate, "undone redone ");
    adaptor().flushHostUndo();
    EXPECT_EQ(fate, "undone redone released ");
}

TEST_F(UndoServices, CoreRecordsEndWithTheCoreAndTheEntryStays) {
    adaptor().beginUndoGroup("edit");
    adaptor().addUndoRecord(new TestRecord(fate));
    adaptor().endUndoGroup();
    adaptor().beginUndoGroup("left open");
    adaptor().letGoOfCore();
    EXPECT_EQ(fate, "released ");
    EXPECT_FALSE(adaptor().isUndoRecording());
    EXPECT_EQ(theHold.Holding(), 0);
    EXPECT_TRUE(host.undo());
    EXPECT_TRUE(host.redo());
    EXPECT_EQ(fate, "released ");
}

/// Runs what it is given when it is undone or released.
class ActingRecord : public CUndo {
  public:
    using Act = std::function<void()>;
    ActingRecord(Act onUndo, Act onRelease) : onUndo_(std::move(onUndo)), onRelease_(std::move(onRelease)) {}
    ~ActingRecord() override { onRelease_(); }
    void restore(bool) override { onUndo_(); }
    void redo() override {}

  private:
    Act onUndo_, onRelease_;
};

TEST_F(UndoServices, ACancelWithinTheHostsUndoIsNotCarriedOver) {
    const auto cancelAGroup = [] {
        adaptor().beginUndoGroup("within");
        adaptor().cancelUndoGroup();
    };
    adaptor().beginUndoGroup("edit");
    adaptor().addUndoRecord(new ActingRecord(cancelAGroup, [] {}));
    adaptor().endUndoGroup();
    ASSERT_TRUE(host.undo());
    adaptor().beginUndoGroup("next");
    adaptor().addUndoRecord(new TestRecord(fate));
    adaptor().endUndoGroup();
    EXPECT_EQ(fate, "");
    EXPECT_EQ(host.undoNames(), std::vector<std::string>{"next"});
}

TEST_F(UndoServices, AReleasedRecordMayEmptyTheHostsUndoList) {
    for (const bool flushing : {false, true, false}) {
        adaptor().beginUndoGroup("edit");
        for (int i = 0; i < 2; ++i)
            adaptor().addUndoRecord(new ActingRecord([] {},
                                                     [this, flushing] {
                                                         fate += "released ";
                                                         if (flushing) adaptor().flushHostUndo();
                                                     }));
        adaptor().endUndoGroup();
    }
    adaptor().letGoOfCore();
    EXPECT_EQ(fate, "released released released released released released ");
}

TEST_F(UndoServices, OddNestingIsReportedNotRefused) {
    for (int i = 0; i < 102; ++i) {
        const bool reported = log().find("unusual high undo level") != std::string::npos;
        EXPECT_EQ(reported, i > 101) << "at depth " << i;
        adaptor().beginUndoGroup("group" + std::to_string(i));
    }
    EXPECT_NE(log().find("unusual high undo level"), std::string::npos);
    EXPECT_EQ(log().find("duplicated undo groups"), std::string::npos);
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(log().find("duplicated undo groups"), std::string::npos) << "with " << i << " open";
        adaptor().beginUndoGroup("same");
    }
    EXPECT_NE(log().find("duplicated undo groups"), std::string::npos);
    for (int i = 0; i < 107; ++i)
        EXPECT_EQ(adaptor().endUndoGroup(), 0);
    EXPECT_EQ(adaptor().endUndoGroup(), 1);
}

TEST_F(UndoServices, TheTimeGoesBackWithAKeyBatch) {
    adaptor().beginKeyBatch();  // around the group: its own batch is nested
    adaptor().setTime(2.0);
    adaptor().beginUndoGroup("keys");
    adaptor().beginKeyBatch();
    adaptor().setTime(5.0);
    adaptor().endKeyBatch();
    adaptor().endUndoGroup();
    adaptor().endKeyBatch();
    host.undo();
    EXPECT_DOUBLE_EQ(adaptor().getTime(), 2.0);
    host.redo();
    EXPECT_DOUBLE_EQ(adaptor().getTime(), 5.0);
}

/// A record whose methods throw, as a faulty core's might.
class ThrowingRecord : public CUndo {
  public:
    void restore(bool) override { throw std::runtime_error("restore"); }
    void redo() override { throw std::runtime_error("redo"); }
    void release() override {
        delete this;
        throw std::runtime_error("release");
    }
};

TEST_F(UndoServices, NoExceptionOfARecordReachesTheHost) {
    adaptor().beginUndoGroup("edit");
    adaptor().addUndoRecord(new ThrowingRecord);
    adaptor().endUndoGroup();
    EXPECT_TRUE(host.undo());
    EXPECT_TRUE(host.redo());
    adaptor().flushHostUndo();
    EXPECT_NE(log().find("Exception in CUndo::restore: restore"), std::string::npos);
    EXPECT_NE(log().find("Exception in CUndo::release: release"), std::string::npos);
}

}  // namespace
}  // namespace qvo::zmx::adaptor::max
