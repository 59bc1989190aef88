// Compares the evaluation of clips with that of an independent importer.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "samples/mocap_core/bvh/BvhReader.h"
#include "samples/mocap_core/bvh/Skeleton.h"
#include "tests/support/ClipJudge.h"

namespace qvo::zmx::mocap {
namespace {

double heightOf(const std::vector<Matrix4>& world) {
    const auto [low, high] = std::minmax_element(
        world.begin(), world.end(), [](const Matrix4& a, const Matrix4& b) { return a.m[3][1] < b.m[3][1]; });
    return high->m[3][1] - low->m[3][1];
}

/// The largest difference of one joint's matrices: rotation entries as they are, positions over `height`.
double difference(const Matrix4& ours, const ClipJudge::Matrix& theirs, double height) {
    double largest = 0.0;
    for (unsigned row = 0; row < 4; ++row) {
        for (unsigned column = 0; column < 3; ++column) {
            const double scale = row == 3 ? height : 1.0;
            largest = std::max(largest, std::abs(ours.m[row][column] - theirs[column][row]) / scale);
        }
    }
    return largest;
}

void expectAgreement(const std::string& text, double metresPerUnit) {
    const Clip clip = BvhReader::parse(text, "clip");
    const ClipJudge judge(text);
    ASSERT_GE(judge.nodeCount(), clip.joints.size());
    const Skeleton skeleton(clip, metresPerUnit);
    std::vector<Matrix4> world;
    skeleton.evaluate(0, world);
    const double height = heightOf(world);
    ASSERT_GT(height, 0.0);
    double worst = 0.0;
    for (std::size_t frame = 0; frame < clip.frameCount(); ++frame) {
        skeleton.evaluate(frame, world);
        const auto judged = judge.worldAt(static_cast<unsigned>(frame));
        for (std::size_t i = 0; i < world.size(); ++i) {
            ClipJudge::Matrix theirs = judged.at(clip.joints[i].name);
            theirs.a4 *= metresPerUnit;
            theirs.b4 *= metresPerUnit;
            theirs.c4 *= metresPerUnit;
            worst = std::max(worst, difference(world[i], theirs, height));
        }
    }
    EXPECT_LT(worst, 1e-4);
}

TEST(Skeleton, EveryOrderOfRotationsAgrees) {
    for (const std::string axes :
         {"XYZ", "XZY", "YXZ", "YZX", "ZXY", "ZYX", "XYX", "XZX", "YXY", "YZY", "ZXZ", "ZYZ"}) {
        SCOPED_TRACE(axes);
        const std::string rotations =
            std::string() + axes[0] + "rotation " + axes[1] + "rotation " + axes[2] + "rotation\n";
        expectAgreement("HIERARCHY\nROOT a\n{\nOFFSET 1 2 3\nCHANNELS 6 Yposition Xposition Zposition " +
                            rotations + "JOINT b\n{\nOFFSET 0 4 1\nCHANNELS 3 " + rotations +
                            "End Site\n{\nOFFSET 0 1 0\n}\n}\n}\nMOTION\nFrames: 2\nFrame Time: 0.01\n"
                            "7 8 9 10 20 30 40 50 60\n-1 -2 -3 -100 170 -80 300 -45 90\n",
                        0.5);
    }
}

TEST(Skeleton, AxesWithoutPositionChannelKeepTheOffset) {
    const Clip clip = BvhReader::parse(
        "HIERARCHY\nROOT a\n{\nOFFSET 1 2 3\nCHANNELS 8 Zrotation Yposition Zrotation"
        " Zrotation Zrotation Zrotation Zrotation Zrotation\n}\n"
        "MOTION\nFrames: 1\nFrame Time: 0.01\n30 7 10 10 10 10 10 10\n",
        "clip");
    std::vector<Matrix4> world;
    Skeleton(clip, 2.0).evaluate(0, world);
    EXPECT_DOUBLE_EQ(world[0].m[3][0], 2.0);
    EXPECT_DOUBLE_EQ(world[0].m[3][1], 14.0);
    EXPECT_DOUBLE_EQ(world[0].m[3][2], 6.0);
    EXPECT_NEAR(world[0].m[0][1], 1.0, 1e-15);  // a quarter turn about Z takes the X axis to the Y axis
}

}  // namespace
}  // namespace qvo::zmx::mocap
