// What sessions leave behind, and what they do about clips that cannot be used.

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <regex>

#include "tests/scenario/HeadlessRun.h"

namespace scenario {
namespace {

namespace fs = std::filesystem;

std::string nestedJoints(int depth) {
    std::string text = "HIERARCHY\nROOT j\n{\nOFFSET 0 1 0\nCHANNELS 1 Xposition\n";
    for (int i = 1; i < depth; ++i)
        text += "JOINT j\n{\nOFFSET 0 1 0\nCHANNELS 0\n";
    for (int i = 0; i < depth; ++i)
        text += "}\n";
    return text;
}

/// A limb of two joints; `frames` are the lines after the frame time.
std::string limb(int announced, const std::string& frames) {
    return "HIERARCHY\nROOT Arm & <Co>\n{\nOFFSET 0 100 0\n"
           "CHANNELS 6 Xposition Yposition Zposition Zrotation Yrotation Xrotation\n"
           "JOINT Hand, left\n{\nOFFSET 30 0 0\nCHANNELS 3 Zrotation Yrotation Xrotation\n"
           "End Site\n{\nOFFSET 10 0 0\n}\n}\n}\nMOTION\nFrames: " +
           std::to_string(announced) + "\nFrame Time: 0.04\n" + frames;
}

const std::string kFirst = "0 100 0 0 0 0 0 0 0\n", kSecond = "5 100 2 30 10 0 45 0 0\n",
                  kThird = "10 104 2 60 20 5 90 0 0\n";

std::vector<std::string> namesIn(const fs::path& folder) {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

class SessionTest : public ::testing::Test {
  protected:
    /// Plays a session with this clip, and with these elements in the core's settings.
    int play(const std::string& clipText, const std::vector<std::string>& settings = {}) {
        clip_ = session_.folder() / "clip.bvh";
        HeadlessRun::writeFile(clip_, clipText);
        return session_.install(clip_, settings) ? session_.play() : -1;
    }

    std::string result(const std::string& name) const { return HeadlessRun::readFile(session_.out() / name); }

    HeadlessRun session_;
    fs::path clip_;
};

TEST_F(SessionTest, LeavesAllResults) {
    ASSERT_EQ(play(limb(3, kFirst + kSecond + kThird)), 0) << session_.standardError();
    EXPECT_EQ(session_.standardError(), "");
    EXPECT_EQ(namesIn(session_.out()),
              (std::vector<std::string>{"curves.svg", "log.txt", "positions.csv", "scene.zms", "summary.json",
                                        "viewport.png"}));
    EXPECT_EQ(namesIn(session_.folder()),
              (std::vector<std::string>{"clip.bvh", "installation", "out", "stderr", "stdout"}));
    const std::string table = result("positions.csv");
    EXPECT_EQ(std::count(table.begin(), table.end(), '\n'), 7);
    EXPECT_NE(table.find("\n0,\"clip_Hand, left\",0.3"), std::string::npos) << table;
    EXPECT_NE(result("curves.svg").find("clip_Hand, left: frames 0 to 2"), std::string::npos);
    EXPECT_EQ(result("viewport.png").compare(1, 3, "PNG"), 0);
    const std::string summary = result("summary.json");
    for (const char* member :
         {"\"joints\": 2", "\"keys\": 6", "\"frames\": 3", "\"frames_per_second\": 25,",
          "\"undo_entries\": 1", "same bytes\": true", "\"message_boxes\": []", "\"faults\": []"})
        EXPECT_NE(summary.find(member), std::string::npos) << member << " missing in " << summary;
    const std::string log = result("log.txt");
    for (const char* heading : {"==== adaptor.log ====\n", "==== core.log ====\n", "==== host ====\n"})
        EXPECT_NE(log.find(heading), std::string::npos) << log;
}

TEST_F(SessionTest, SecondSessionReplacesTheResultsAndNothingElse) {
    const std::string text = limb(3, kFirst + kSecond + kThird);
    ASSERT_EQ(play(text), 0) << session_.standardError();
    const std::string positions = result("positions.csv"), picture = result("viewport.png");
    HeadlessRun::writeFile(session_.out() / "positions.csv", "older");
    HeadlessRun::writeFile(session_.out() / "notes.txt", "mine");
    ASSERT_EQ(play(text), 0) << session_.standardError();
    EXPECT_EQ(result("positions.csv"), positions);
    EXPECT_EQ(result("viewport.png"), picture);
    EXPECT_EQ(result("notes.txt"), "mine");
}

TEST_F(SessionTest, ResultsMayGoToAnotherDisk) {
    const fs::path there = fs::path("/dev/shm") / session_.folder().filename();  // where there is one
    std::error_code failed;
    fs::create_directory(there, failed);
    fs::create_directory_symlink(failed ? session_.folder() : there, session_.out());
    EXPECT_EQ(play(limb(1, kFirst)), 0) << session_.standardError();
    EXPECT_EQ(namesIn(session_.out()).size(), failed ? 11u : 6u);
    fs::remove_all(there, failed);
}

TEST_F(SessionTest, ResultThatCannotTakeItsPlaceLeavesTheOthersAlone) {
    fs::create_directories(session_.out() / "log.txt");
    EXPECT_EQ(play(limb(1, kFirst)), 1);
    EXPECT_NE(session_.standardError().find("log.txt: is a folder"), std::string::npos);
    EXPECT_EQ(namesIn(session_.out()), std::vector<std::string>{"log.txt"});
}

/// The program itself compares the motion after undo and redo, and after reopening.
TEST_F(SessionTest, ConversionOfAllControllersIsAnEntryOfItsOwn) {
    ASSERT_EQ(play(limb(3, kFirst + kSecond + kThird), {"<convertAll/>"}), 0) << session_.standardError();
    const std::string summary = result("summary.json");
    EXPECT_NE(summary.find("\"undo_entries\": 2"), std::string::npos) << summary;
    EXPECT_NE(summary.find("\"undo removes the skeleton\": true"), std::string::npos) << summary;
}

TEST_F(SessionTest, MissingCoreIsToldInOneLine) {
    HeadlessRun::writeFile(session_.folder() / "clip.bvh", limb(1, kFirst));
    ASSERT_TRUE(session_.install(session_.folder() / "clip.bvh"));
    fs::remove(session_.installation() / "kestrelstudio/data/core/win/x64/core.dll");
    EXPECT_EQ(session_.play(), 1);
    EXPECT_NE(session_.standardError(), "");
    EXPECT_FALSE(fs::exists(session_.out()));
}

struct BadClip {
    const char* name;
    std::string text;
    const char* cause;  // a part of it
};

void PrintTo(const BadClip& row, std::ostream* out) {
    *out << row.name;
}

class BadClipTest : public SessionTest, public ::testing::WithParamInterface<BadClip> {};

TEST_P(BadClipTest, OneLineStatusTwoAndNoResults) {
    EXPECT_EQ(play(GetParam().text), 2);
    const std::string error = session_.standardError();
    EXPECT_EQ(session_.standardOutput(), "");
    EXPECT_EQ(std::count(error.begin(), error.end(), '\n'), 1) << error;
    ASSERT_EQ(error.compare(0, clip_.string().size() + 1, clip_.string() + ":"), 0) << error;
    const std::string rest = error.substr(clip_.string().size());
    EXPECT_TRUE(std::regex_match(rest, std::regex(":[0-9]+: [^\n]+\n"))) << error;
    EXPECT_NE(rest.find(GetParam().cause), std::string::npos) << error;
    EXPECT_FALSE(fs::exists(session_.out()));
    EXPECT_EQ(namesIn(session_.folder()),
              (std::vector<std::string>{"clip.bvh", "installation", "stderr", "stdout"}));
}

const BadClip kBadClips[] = {
    {"Empty", "", "empty"},
    {"TruncatedMidFrame", limb(2, kFirst + "5 100 2 30"), "frame 2"},
    {"FewerFramesThanAnnounced", limb(5, kFirst + kSecond), "2 of 5 frames"},
    {"MoreFramesThanAnnounced", limb(1, kFirst + kSecond), "after the last of 1 frames"},
    {"LettersAmongNumbers", limb(1, "0 100 x7 0 0 0 0 0 0\n"), "not a number"},
    {"NotANumber", limb(1, "0 100 nan 0 0 0 0 0 0\n"), "not a finite number"},
    {"TenThousandNestedJoints", nestedJoints(10000) + "MOTION\nFrames: 1\nFrame Time: 0.04\n1\n", "nested"},
};

INSTANTIATE_TEST_SUITE_P(Clips, BadClipTest, ::testing::ValuesIn(kBadClips),
                         [](const auto& test) { return std::string(test.param.name); });

}  // namespace
}  // namespace scenario
