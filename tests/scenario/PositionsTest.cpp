// The positions that a session leaves, from the reopened scene, against an independent evaluation of the
// clip.

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <limits>
#include <sstream>

#include "tests/scenario/HeadlessRun.h"
#include "tests/support/ClipJudge.h"

namespace scenario {
namespace {

constexpr double kMetresPerUnit = 0.01;

struct Row {
    unsigned frame = 0;
    std::string node;
    double x = 0, y = 0, z = 0;
};

/// Reads the table; a line that does not fit ends it with a failure.
std::vector<Row> readPositions(const std::filesystem::path& path) {
    std::istringstream table(HeadlessRun::readFile(path));
    std::string line;
    std::getline(table, line);
    EXPECT_EQ(line, "frame,node,x,y,z");
    std::vector<Row> rows;
    while (std::getline(table, line)) {
        Row row;
        char node[128];
        const int read =
            std::sscanf(line.c_str(), "%u,%127[^,],%lf,%lf,%lf", &row.frame, node, &row.x, &row.y, &row.z);
        if (read != 5) {
            ADD_FAILURE() << line;
            break;
        }
        row.node = node;
        rows.push_back(row);
    }
    return rows;
}

std::size_t occurrences(const std::string& text, const std::string& word) {
    std::size_t count = 0;
    for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1))
        ++count;
    return count;
}

double heightAtFirstFrame(const std::vector<Row>& rows) {
    double low = std::numeric_limits<double>::infinity(), high = -low;
    for (const Row& row : rows) {
        if (row.frame != 0) break;
        low = std::min(low, row.y);
        high = std::max(high, row.y);
    }
    return high - low;
}

class PositionsTest : public ::testing::TestWithParam<const char*> {};

TEST_P(PositionsTest, EveryJointAndFrameAgrees) {
    const std::string name = GetParam();
    const std::filesystem::path clip = std::filesystem::path(ZK_BVH_MODELS) / (name + ".bvh");
    const std::string text = HeadlessRun::readFile(clip);
    ASSERT_FALSE(text.empty()) << clip << " is missing: install assimp-testmodels";
    HeadlessRun session;
    ASSERT_TRUE(session.install(clip));
    ASSERT_EQ(session.play(), 0) << session.standardError();
    const std::vector<Row> rows = readPositions(session.out() / "positions.csv");
    const ClipJudge judge(text);
    const std::size_t joints = occurrences(text, "JOINT ") + occurrences(text, "ROOT ");
    const auto frames = static_cast<std::size_t>(std::atoi(text.c_str() + text.find("Frames:") + 7));
    ASSERT_EQ(rows.size(), joints * frames);

    const double height = heightAtFirstFrame(rows);
    ASSERT_GT(height, 0);
    double worst = 0;
    std::map<std::string, ClipJudge::Matrix> judged;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const Row& row = rows[i];
        ASSERT_EQ(row.frame, i / joints);
        if (i % joints == 0) judged = judge.worldAt(row.frame);
        ASSERT_EQ(row.node.compare(0, name.size() + 1, name + "_"), 0) << row.node;
        const ClipJudge::Matrix& theirs = judged.at(row.node.substr(name.size() + 1));
        const double off = std::hypot(row.x - theirs.a4 * kMetresPerUnit, row.y - theirs.b4 * kMetresPerUnit,
                                      row.z - theirs.c4 * kMetresPerUnit);
        worst = std::max(worst, off / height);
    }
    EXPECT_LT(worst, 1e-4);
    RecordProperty("WorstPerHeight", std::to_string(worst));
}

INSTANTIATE_TEST_SUITE_P(Clips, PositionsTest, ::testing::Values("01_01", "01_03", "Boxing_Toes"),
                         [](const auto& test) { return std::string(test.param); });

}  // namespace
}  // namespace scenario
