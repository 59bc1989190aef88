#include <cmath>
#include <cstdio>
#include <fstream>
#include <iterator>

#include "adaptor/max/controllers/Conversion.h"
#include "adaptor/max/nodes/HostSpace.h"
#include "adaptor/max/plugin/ClassIds.h"
#include "tests/support/AdaptorFixture.h"

namespace qvo::zmx::adaptor::max {
namespace {

constexpr int kJoints = 5;
constexpr int kFrames = 40;

/// A bake as a core does it: a chain of joints that turns and travels, key by key through snapshots.
class Bake : public AdaptorFixture {
  protected:
    static double secondsOf(int frame) { return frame / 30.0 + 1e-6; }

    static Matrix4 pose(int joint, int frame) {
        const double angle = 0.13 * frame * (joint + 1);
        Matrix4 pose = kIdentityMatrix4;
        pose.m[0][0] = pose.m[1][1] = std::cos(angle);
        pose.m[0][1] = std::sin(angle);
        pose.m[1][0] = -std::sin(angle);
        pose.m[3][0] = 0.02 * frame;
        pose.m[3][1] = 0.3 * joint;
        pose.m[3][2] = 0.01 * joint * frame;
        return pose;
    }

    void bake() {
        adaptor().beginUndoGroup("Bake");
        CMAXNode* parent = nullptr;
        joints.clear();
        for (int joint = 0; joint < kJoints; ++joint)
            joints.push_back(parent = makeHelper("joint" + std::to_string(joint), parent));
        adaptor().beginKeyBatch();
        for (int frame = 0; frame < kFrames; ++frame)
            for (int joint = 0; joint < kJoints; ++joint) {
                core::CoreNode::Snapshot* const snapshot = joints[joint]->acquireSnapshot(secondsOf(frame));
                ASSERT_NE(snapshot->setWorldTransform(pose(joint, frame)), 0);
                joints[joint]->releaseSnapshot(snapshot);
            }
        adaptor().endKeyBatch();
    }

    /// World transforms of all joints at half frames too, found by name: what a user sees of the animation.
    std::vector<float> playback() {
        std::vector<float> numbers;
        for (int half = 0; half < 2 * kFrames; ++half)
            for (int joint = 0; joint < kJoints; ++joint) {
                const std::string name = "tool_joint" + std::to_string(joint);
                INode* const node = ip().GetINodeByName(name.c_str());
                if (!node) return {};
                const Matrix3 world = node->GetNodeTM(half * 80);
                for (int row = 0; row < 4; ++row)
                    for (int column = 0; column < 3; ++column)
                        numbers.push_back(world.GetRow(row)[column]);
            }
        return numbers;
    }

    static std::string bytesOf(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::vector<CMAXNode*> joints;
};

TEST_F(Bake, OneUndoRemovesItAndOneRedoBringsItBack) {
    bake();
    adaptor().endUndoGroup();
    const std::vector<float> before = playback();
    ASSERT_EQ(host.undoNames(), std::vector<std::string>{"Bake"});
    ASSERT_TRUE(host.undo());
    EXPECT_EQ(ip().GetRootNode()->NumberOfChildren(), 0);
    EXPECT_TRUE(createdNodes().empty());
    ASSERT_TRUE(host.redo());
    EXPECT_EQ(playback(), before);
    EXPECT_EQ(createdNodes().size(), std::size_t(kJoints));
}

TEST_F(Bake, CancelledItLeavesTheSceneAsItWas) {
    adaptor().setTime(1.5);
    CMAXNode* const before = makeHelper("before");
    bake();
    adaptor().cancelUndoGroup();
    EXPECT_EQ(createdNodes(), std::vector<core::CoreNode*>{before});
    EXPECT_EQ(ip().GetRootNode()->NumberOfChildren(), 1);
    EXPECT_TRUE(host.undoNames().empty());
    EXPECT_FALSE(Animating());
    EXPECT_DOUBLE_EQ(adaptor().getTime(), 1.5);
}

TEST_F(Bake, WhatWasSetIsWhatIsRead) {
    bake();
    adaptor().endUndoGroup();
    for (int frame = 0; frame < kFrames; ++frame)
        for (int joint = 0; joint < kJoints; ++joint) {
            core::CoreNode::Snapshot* const snapshot = joints[joint]->acquireSnapshot(secondsOf(frame));
            const Matrix4 read = snapshot->getWorldTransform();
            const Matrix4 set = pose(joint, frame);
            for (int i = 0; i < 16; ++i)
                ASSERT_NEAR(read.m[i / 4][i % 4], set.m[i / 4][i % 4], 1e-4)
                    << joint << " at frame " << frame;
            joints[joint]->releaseSnapshot(snapshot);
        }
}

TEST_F(Bake, ConvertedToTheHostsControllerEveryKeyStaysInPlace) {
    bake();
    adaptor().endUndoGroup();
    const std::vector<float> before = playback();
    adaptor().beginUndoGroup("Convert");
    convertAllTransformControls();
    adaptor().endUndoGroup();
    for (CMAXNode* const joint : joints)
        EXPECT_EQ(joint->hostNode()->GetTMController()->ClassID(), Class_ID(PRS_CONTROL_CLASS_ID, 0));
    const std::vector<float> after = playback();
    ASSERT_EQ(after.size(), before.size());
    const std::size_t perMoment = kJoints * 12;
    const double tolerance = 1e-4 * systemUnitsPerMeter();
    for (std::size_t i = 0; i < before.size(); ++i) {
        const bool onKey = i / perMoment % 2 == 0;
        if (onKey) {
            ASSERT_NEAR(after[i], before[i], tolerance) << "number " << i;
        }
    }
    ASSERT_TRUE(host.undo());
    EXPECT_EQ(playback(), before);
}

TEST_F(Bake, SurvivesTheSceneFileByteForByte) {
    bake();
    adaptor().endUndoGroup();
    const std::vector<float> before = playback();
    Matrix3 placed(1);
    placed.SetTrans(Point3(1.0f, 2.0f, 3.0f));
    makeHelper("still")->hostNode()->SetNodeTM(800, placed);  // a value without a key
    const std::string first = ::testing::TempDir() + "bake_first.zms";
    const std::string second = ::testing::TempDir() + "bake_second.zms";
    ASSERT_TRUE(host.save(first)) << host.lastMessage();
    adaptor().letGoOfCore();
    ASSERT_TRUE(host.reset());
    ASSERT_TRUE(host.open(first)) << host.lastMessage();
    ASSERT_TRUE(host.save(second)) << host.lastMessage();
    EXPECT_EQ(bytesOf(first), bytesOf(second)) << "before anyone looked";
    EXPECT_EQ(playback(), before);
    EXPECT_EQ(ip().GetINodeByName("tool_joint0")->GetTMController()->ClassID(), kTransformControlClassId);
    EXPECT_EQ(ip().GetINodeByName("tool_joint0")->GetObjectRef()->ClassID(), kHelperClassId);
    ASSERT_TRUE(host.save(second)) << host.lastMessage();
    EXPECT_EQ(bytesOf(first), bytesOf(second));
    std::remove(first.c_str());
    std::remove(second.c_str());
}

}  // namespace
}  // namespace qvo::zmx::adaptor::max
