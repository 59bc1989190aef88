#include <map>
#include <sstream>

#include "tests/maxhost/HostFixture.h"

namespace maxhost::test {
namespace {

/// Writes what happens to it into a shared text: -a cancelled, <a undone, >a redone, .a end of hold, ~a
/// deleted.
class LoggedRecord : public RestoreObj {
  public:
    LoggedRecord(std::string name, std::ostream& log) : name_(std::move(name)), log_(log) {}
    ~LoggedRecord() override { log_ << '~' << name_ << ' '; }

    void Restore(int isUndo) override {
        int announced = -1;
        const bool consistent = theHold.Restoring(announced) && announced == isUndo && !theHold.Redoing();
        log_ << (consistent && idle() ? "" : "!") << (isUndo ? '<' : '-') << name_ << ' ';
    }
    void Redo() override { log_ << (theHold.Redoing() && idle() ? "" : "!") << '>' << name_ << ' '; }
    void EndHold() override { log_ << '.' << name_ << ' '; }

  private:
    static bool idle() { return !theHold.Holding() && theHold.RestoreOrRedoing(); }

    std::string name_;
    std::ostream& log_;
};

struct Script {
    const char* name;
    const char* steps;  ///< words; a single letter puts a record of that name
    const char* log;
    const char* undoNames;  ///< oldest first
    const char* redoNames;
    size_t faults;
};

std::ostream& operator<<(std::ostream& out, const Script& script) {
    return out << script.steps;
}

class UndoScript : public HostFixture, public ::testing::WithParamInterface<Script> {
  protected:
    void step(const std::string& word) {
        static TCHAR name[] = "A";
        static const std::map<std::string, void (*)(UndoRecorder&)> commands = {
            {"begin", [](UndoRecorder&) { theHold.Begin(); }},
            {"cancel", [](UndoRecorder&) { theHold.Cancel(); }},
            {"end", [](UndoRecorder&) { theHold.End(); }},
            {"restore", [](UndoRecorder&) { theHold.Restore(); }},
            {"release", [](UndoRecorder&) { theHold.Release(); }},
            {"super", [](UndoRecorder&) { theHold.SuperBegin(); }},
            {"superaccept", [](UndoRecorder&) { theHold.SuperAccept(name); }},
            {"supercancel", [](UndoRecorder&) { theHold.SuperCancel(); }},
            {"suspend", [](UndoRecorder&) { theHold.Suspend(); }},
            {"resume", [](UndoRecorder&) { theHold.Resume(); }},
            {"disable", [](UndoRecorder&) { theHold.DisableUndo(); }},
            {"enable", [](UndoRecorder&) { theHold.EnableUndo(); }},
            {"undo", [](UndoRecorder& recorder) { recorder.undo(); }},
            {"redo", [](UndoRecorder& recorder) { recorder.redo(); }},
            {"flush", [](UndoRecorder& recorder) { recorder.flush(); }},
        };
        if (word.size() == 1) {
            theHold.Put(new LoggedRecord(word, log));
        } else if (word.rfind("accept:", 0) == 0) {
            accept(word.substr(7));
        } else {
            commands.at(word)(undo);
        }
    }
    static std::string joined(const std::vector<std::string>& names) {
        std::string text;
        for (const std::string& name : names)
            text += name + " ";
        return text;
    }

    std::ostringstream log;
};

TEST_P(UndoScript, Plays) {
    std::istringstream words(GetParam().steps);
    for (std::string word; words >> word;)
        step(word);
    EXPECT_EQ(log.str(), GetParam().log);
    EXPECT_EQ(joined(undo.undoNames()), GetParam().undoNames);
    EXPECT_EQ(joined(undo.redoNames()), GetParam().redoNames);
    EXPECT_EQ(takeFaults().size(), GetParam().faults);
}

const Script kScripts[] = {
    {"AcceptMakesEntry", "begin a b accept:X", ".a .b ", "X ", "", 0},
    {"EmptyHoldMakesNone", "begin a accept:X undo begin accept:Y", ".a <a ", "", "X ", 0},
    {"NestedAcceptsMerge", "begin a begin b accept:In c accept:Out", ".a .b .c ", "Out ", "", 0},
    {"NestedCancelUndoesAllYetStaysOpen", "begin a begin b cancel c accept:X", "-b -a .a .b ~b ~a .c ", "X ",
     "", 0},
    {"CancelNewestFirst", "begin a b cancel", "-b -a .a .b ~b ~a ", "", "", 0},
    {"UndoRedoSameRecords", "begin a b accept:X undo redo undo", ".a .b <b <a >a >b <b <a ", "", "X ", 0},
    {"NewEntryDropsRedo", "begin a accept:X undo begin b accept:Y", ".a <a .b ~a ", "Y ", "", 0},
    {"FlushDropsBothLists", "begin a accept:X begin b accept:Y undo flush", ".a .b <b ~a ~b ", "", "", 0},
    {"NoUndoDuringHold", "begin a accept:X begin undo redo accept:Y", ".a ", "X ", "", 0},
    {"PutOutsideHoldIsFault", "a begin suspend b resume c accept:X", "~a ~b .c ", "X ", "", 2},
    {"UnmatchedEndsAreFaults", "accept:X cancel end superaccept supercancel resume enable", "", "", "", 7},
    {"DisabledUndoDropsRecords", "disable begin a accept:X enable begin b accept:Y", ".a ~a .b ", "Y ", "",
     0},
    {"SuperGroupIsOneEntry", "super begin a accept:X begin b accept:Y superaccept undo", ".a .b <b <a ", "",
     "A ", 0},
    {"CancelInSuperUndoesOwnGroup", "super begin a accept:X begin b cancel superaccept", ".a -b .b ~b ", "A ",
     "", 0},
    {"SuperCancelUndoesAll", "super begin a accept:X begin b accept:Y supercancel",
     ".a .b -b -a .a .b ~b ~a ", "", "", 0},
    {"RestoreKeepsRecords", "begin a restore b accept:X undo", "-a .a .b <b <a ", "", "X ", 0},
    {"ReleaseForgets", "begin a release b accept:X", ".a ~a .b ", "X ", "", 0},
    {"EndForgets", "begin a begin b end end", ".a .b ~b ~a ", "", "", 0},
};
INSTANTIATE_TEST_SUITE_P(Undo, UndoScript, ::testing::ValuesIn(kScripts),
                         [](const auto& row) { return std::string(row.param.name); });

class UndoTest : public HostFixture {};

TEST_F(UndoTest, ListKeepsTheTwentyNewest) {
    std::ostringstream log;
    for (int i = 0; i < 22; ++i) {
        theHold.Begin();
        theHold.Put(new LoggedRecord(std::to_string(i), log));
        accept(std::to_string(i));
    }
    EXPECT_EQ(undo.undoNames().size(), 20u);
    EXPECT_EQ(undo.undoNames().front(), "2");
    EXPECT_NE(log.str().find("~0 "), std::string::npos);
    EXPECT_EQ(log.str().find("~2 "), std::string::npos);
    undo.flush();
}

TEST_F(UndoTest, RecordsMayFlushAndHoldWhileUndone) {
    struct Meddler : RestoreObj {
        void Restore(int) override {
            theHold.Begin();
            UndoRecorder::instance().flush();
            theHold.Cancel();
        }
        void Redo() override {}
    };
    theHold.Begin();
    theHold.Put(new Meddler);
    accept("X");
    EXPECT_TRUE(undo.undo());
    EXPECT_EQ(undo.redoNames(), std::vector<std::string>{"X"});
    EXPECT_EQ(theHold.GetBeginDepth(), 0);
}

}  // namespace
}  // namespace maxhost::test
