#include <cmath>

#include "adaptor/max/ClassIds.h"
#include "adaptor/max/controllers/Conversion.h"
#include "adaptor/max/nodes/HostSpace.h"
#include "tests/support/AdaptorFixture.h"

namespace qvo::zmx::adaptor::max {
namespace {

constexpr int kJoints = 5;
constexpr int kFrames = 40;

/// A bake as a core does it: a chain of joints that turns and travels, key by key through snapshots.
class Bake : public AdaptorFixture {
  protected:
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

    std::vector<CMAXNode*> joints;
};

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

}  // namespace
}  // namespace qvo::zmx::adaptor::max
