#include "samples/mocap_core/bvh/BvhReader.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace qvo::zmx::mocap {
namespace {

constexpr char kHead[] = "HIERARCHY\nROOT a\n{\n\tOFFSET 0 0 0\n\tCHANNELS 1 Xposition\n}\n";

std::string withMotion(const std::string& motion) {
    return std::string(kHead) + motion;
}

std::string replaced(std::string text, const std::string& from, const std::string& to) {
    for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
        text.replace(at, from.size(), to);
    return text;
}

std::string nested(int depth) {
    std::string text = "HIERARCHY\nROOT j\n{\nOFFSET 0 0 0\nCHANNELS 1 Xposition\n";
    for (int i = 1; i < depth; ++i)
        text += "JOINT j\n{\nOFFSET 0 0 0\nCHANNELS 0\n";
    for (int i = 0; i < depth; ++i)
        text += "}\n";
    return text + "MOTION\nFrames: 1\nFrame Time: 0.01\n1\n";
}

constexpr char kTwoLimbs[] =
    "HIERARCHY\n"
    "ROOT Hips\n{\n\tOFFSET 0 1.5e1 -0\n"
    "\tCHANNELS 6 Xposition Yposition Zposition Zrotation Yrotation Xrotation \n"
    "\tJOINT Left Leg\n\t{\n\t\tOFFSET -1 -.5 +2\n\t\tCHANNELS 2 Xrotation Zrotation\n"
    "\t\tEnd Site\n\t\t{\n\t\t\tOFFSET 0 -3 0\n\t\t}\n\t}\n"
    "\tJOINT Tail\n\t{\n\t\tOFFSET 0 0 0\n\t\tCHANNELS 0\n\t}\n"
    "}\n"
    "MOTION\nFrames: 2\nFrame Time: .0083333\n"
    "1 2 3 4 5 6 7 8\n"
    "1e1\t-2E-1 +3 4. .5 6 7 8\n";

void expectTwoLimbs(const Clip& clip) {
    ASSERT_EQ(clip.joints.size(), 3u);
    EXPECT_EQ(clip.joints[1].name, "Left Leg");
    EXPECT_EQ(clip.joints[1].parent, 0);
    EXPECT_EQ(clip.joints[1].offset, (std::array<double, 3>{-1.0, -0.5, 2.0}));
    EXPECT_EQ(clip.joints[1].channels, (std::vector<Channel>{Channel::RotationX, Channel::RotationZ}));
    EXPECT_EQ(clip.joints[1].firstChannel, 6u);
    EXPECT_EQ(clip.joints[2].parent, 0);
    EXPECT_TRUE(clip.joints[2].channels.empty());
    ASSERT_EQ(clip.endSites.size(), 1u);
    EXPECT_EQ(clip.endSites[0].joint, 1);
    EXPECT_EQ(clip.frameCount(), 2u);
    EXPECT_DOUBLE_EQ(clip.frameTime, 0.0083333);
    EXPECT_EQ(std::vector<double>(clip.frame(1), clip.frame(1) + 8),
              (std::vector<double>{10, -0.2, 3, 4, 0.5, 6, 7, 8}));
}

TEST(BvhReader, ReadsWhatExportersWrite) {
    const std::string unixText = kTwoLimbs;
    const std::string windowsText = replaced(unixText, "\n", "\r\n");
    std::string mixed = unixText;
    mixed.replace(mixed.find("\nMOTION"), 1, "\r\n");
    std::string upper = unixText;
    upper = replaced(replaced(upper, "rotation", "ROTATION"), "Frame Time", "FRAME TIME");
    const struct {
        const char* name;
        std::string text;
    } cases[] = {
        {"Unix", unixText},
        {"Windows", windowsText},
        {"Mixed", mixed},
        {"CarriageReturns", replaced(unixText, "\n", "\r")},
        {"NoFinalLineEnd", unixText.substr(0, unixText.size() - 1)},
        {"BlankLinesAtTheEnd", unixText + "\n \r\n"},
        {"ByteOrderMark", "\xEF\xBB\xBF" + unixText},
        {"OtherCase", upper},
        {"BraceOnTheNameLine", replaced(unixText, "\n{", " {")},
        {"FrameOverTwoLines", replaced(unixText, "4 5 6 7 8\n1e1", "4\n5 6 7 8\n1e1")},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.name);
        expectTwoLimbs(BvhReader::parse(row.text, "clip"));
    }
}

TEST(BvhReader, RepeatedJointNamesBecomeUnique) {
    const Clip clip = BvhReader::parse(
        replaced(replaced(kTwoLimbs, "Left Leg", "Hips_2"), "JOINT Tail", "JOINT Hips"), "clip");
    EXPECT_EQ(clip.joints[1].name, "Hips_2");
    EXPECT_EQ(clip.joints[2].name, "Hips_3");
}

TEST(BvhReader, OneFrameTooManyIsLeftOutOfLongClips) {
    std::string text = withMotion("MOTION\nFrames: 1000\nFrame Time: 0.01\n");
    for (int i = 0; i < 1001; ++i)
        text += std::to_string(i) + "\n";
    const Clip clip = BvhReader::parse(text, "clip");
    EXPECT_TRUE(clip.surplusFrame);
    EXPECT_EQ(clip.frameCount(), 1000u);
    EXPECT_EQ(clip.frame(999)[0], 999.0);
    EXPECT_THROW(BvhReader::parse(text + "1001\n", "clip"), FileError);
}

TEST(BvhReader, DepthUpToTheLimit) {
    EXPECT_EQ(BvhReader::parse(nested(512), "clip").joints.size(), 512u);
}

struct BadCase {
    const char* name;
    std::string text;
    const char* message;
};

void PrintTo(const BadCase& row, std::ostream* out) {
    *out << row.name;
}

class BadClipTest : public ::testing::TestWithParam<BadCase> {};

TEST_P(BadClipTest, OneLineWithPlaceAndCause) {
    try {
        BvhReader::parse(GetParam().text, "c.bvh");
        FAIL() << "accepted";
    } catch (const FileError& error) {
        EXPECT_STREQ(error.what(), GetParam().message);
    }
}

const std::string kTime = "Frame Time: 0.01\n";
const BadCase kBadCases[] = {
    {"Empty", "", "c.bvh:1: the file is empty"},
    {"OtherFormat", "solid x\n", "c.bvh:1: HIERARCHY expected, \"solid\" found"},
    {"NoJoints", "HIERARCHY\nMOTION\n", "c.bvh:2: ROOT expected, \"MOTION\" found"},
    {"NoName", "HIERARCHY\nROOT \n{", "c.bvh:2: a joint without a name"},
    {"NulInName", std::string("HIERARCHY\nROOT a\0b\n{", 20),
     "c.bvh:2: a control character in joint name \"a?b\""},
    {"EndsInJoint", "HIERARCHY\nROOT a\n{\n", "c.bvh:3: the file ends within joint \"a\""},
    {"NoOffset", "HIERARCHY\nROOT a\n{\nCHANNELS 0\n}", "c.bvh:5: OFFSET missing in joint \"a\""},
    {"ChildBeforeChannels", "HIERARCHY\nROOT a\n{\nOFFSET 0 0 0\nJOINT b\n{\n",
     "c.bvh:5: CHANNELS missing in joint \"a\""},
    {"NoChannelAnywhere", "HIERARCHY\nROOT a\n{\nOFFSET 0 0 0\nCHANNELS 0\n}\nMOTION\n",
     "c.bvh:7: no joint has a channel"},
    {"OffsetLetters", "HIERARCHY\nROOT a\n{\nOFFSET 0 x 0\n",
     "c.bvh:4: \"x\" is not a number for the offset of joint \"a\""},
    {"RepeatedPosition", "HIERARCHY\nROOT a\n{\nOFFSET 0 0 0\nCHANNELS 2 Xposition\nXPOSITION\n",
     "c.bvh:6: position \"XPOSITION\" twice in joint \"a\""},
    {"UnknownChannel", "HIERARCHY\nROOT a\n{\nOFFSET 0 0 0\nCHANNELS 1 Xscale\n",
     "c.bvh:5: \"Xscale\" is not a channel"},
    {"TooDeep", nested(10000), "c.bvh:2050: joints nested deeper than 512 levels"},
    {"NoMotion", kHead, "c.bvh:6: MOTION expected, the end of the file found"},
    {"ZeroFrames", withMotion("MOTION\nFrames: 0\n" + kTime), "c.bvh:8: the clip has no frames"},
    {"ZeroFrameTime", withMotion("MOTION\nFrames: 1\nFrame Time: 0\n0\n"),
     "c.bvh:9: the frame time \"0\" is not above 0"},
    {"AbsurdFrames", withMotion("MOTION\nFrames: 18446744073709551615\n" + kTime + "1\n"),
     "c.bvh:10: the file ends after 1 of 18446744073709551615 frames"},
    {"TooManyFrames", withMotion("MOTION\nFrames: 1\n" + kTime + "1\n2\n"),
     "c.bvh:11: \"2\" after the last of 1 frames"},
    {"Truncated", replaced(kTwoLimbs, "4. .5 6 7 8\n", "4."),
     "c.bvh:25: the file ends in frame 2, after 4 of its 8 numbers"},
    {"ShortLine", replaced(kTwoLimbs, "6 7 8\n1e1", "6 7\n1e1"),
     "c.bvh:25: numbers left over after the 8 of frame 1"},
    {"Letters", withMotion("MOTION\nFrames: 1\n" + kTime + "1.0x\n"),
     "c.bvh:10: \"1.0x\" is not a number for frame 1"},
    {"NotANumber", withMotion("MOTION\nFrames: 1\n" + kTime + "nan\n"),
     "c.bvh:10: \"nan\" is not a finite number for frame 1"},
    {"OutOfRange", withMotion("MOTION\nFrames: 1\n" + kTime + "1e999\n"),
     "c.bvh:10: \"1e999\" is out of range for frame 1"},
};

INSTANTIATE_TEST_SUITE_P(BvhReader, BadClipTest, ::testing::ValuesIn(kBadCases),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(BvhReader, FilesThatCannotBeReadAreNamed) {
    for (const std::string path : {"no/such/clip.bvh", "."}) {
        try {
            BvhReader::readFile(path);
            FAIL() << path << " accepted";
        } catch (const FileError& error) {
            EXPECT_EQ(std::string(error.what()).rfind(path + ":0: the clip cannot be ", 0), 0u)
                << error.what();
        }
    }
}

}  // namespace
}  // namespace qvo::zmx::mocap
