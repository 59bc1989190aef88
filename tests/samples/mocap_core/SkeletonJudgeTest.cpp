// Compares the evaluation of clips with that of an independent importer, on real clips and on every order of
// rotation channels.

#include <assimp/postprocess.h>
#include <assimp/scene.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <assimp/Importer.hpp>
#include <cmath>
#include <fstream>
#include <map>
#include <sstream>

#include "samples/mocap_core/bvh/BvhReader.h"
#include "samples/mocap_core/bvh/Skeleton.h"

namespace qvo::zmx::mocap {
namespace {

/// The importer's animation: a node tree with one position and one rotation key per node and frame.
class Judge {
  public:
    explicit Judge(const std::string& text) {
        scene_ = importer_.ReadFileFromMemory(text.data(), text.size(), 0, "bvh");
        if (scene_ == nullptr || scene_->mNumAnimations != 1) return;
        const aiAnimation& animation = *scene_->mAnimations[0];
        for (unsigned i = 0; i < animation.mNumChannels; ++i)
            channels_[animation.mChannels[i]->mNodeName.C_Str()] = animation.mChannels[i];
    }

    std::size_t nodeCount() const { return channels_.size(); }

    /// World matrices by node name, column vectors.
    std::map<std::string, aiMatrix4x4t<double>> worldAt(unsigned frame) const {
        std::map<std::string, aiMatrix4x4t<double>> world;
        place(*scene_->mRootNode, aiMatrix4x4t<double>(), frame, world);
        return world;
    }

  private:
    void place(const aiNode& node, const aiMatrix4x4t<double>& parent, unsigned frame,
               std::map<std::string, aiMatrix4x4t<double>>& world) const {
        const auto channel = channels_.find(node.mName.C_Str());
        const aiMatrix4x4t<double> here =
            parent *
            (channel == channels_.end() ? widened(node.mTransformation) : keyed(*channel->second, frame));
        world[node.mName.C_Str()] = here;
        for (unsigned i = 0; i < node.mNumChildren; ++i)
            place(*node.mChildren[i], here, frame, world);
    }

    static aiMatrix4x4t<double> widened(const aiMatrix4x4& m) {
        return {m.a1, m.a2, m.a3, m.a4, m.b1, m.b2, m.b3, m.b4,
                m.c1, m.c2, m.c3, m.c4, m.d1, m.d2, m.d3, m.d4};
    }

    static aiMatrix4x4t<double> keyed(const aiNodeAnim& channel, unsigned frame) {
        const aiVector3D& p = channel.mPositionKeys[std::min(frame, channel.mNumPositionKeys - 1)].mValue;
        const aiQuaternion& q = channel.mRotationKeys[frame].mValue;
        aiMatrix4x4t<double> m(aiQuaterniont<double>(q.w, q.x, q.y, q.z).GetMatrix());
        m.a4 = p.x;
        m.b4 = p.y;
        m.c4 = p.z;
        return m;
    }

    Assimp::Importer importer_;
    const aiScene* scene_ = nullptr;
    std::map<std::string, const aiNodeAnim*> channels_;
};

double heightOf(const std::vector<Matrix4>& world) {
    const auto [low, high] = std::minmax_element(
        world.begin(), world.end(), [](const Matrix4& a, const Matrix4& b) { return a.m[3][1] < b.m[3][1]; });
    return high->m[3][1] - low->m[3][1];
}

/// The largest difference of one joint's matrices: rotation entries as they are, positions over `height`.
double difference(const Matrix4& ours, const aiMatrix4x4t<double>& theirs, double height) {
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
    const Judge judge(text);
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
            aiMatrix4x4t<double> theirs = judged.at(clip.joints[i].name);
            theirs.a4 *= metresPerUnit;
            theirs.b4 *= metresPerUnit;
            theirs.c4 *= metresPerUnit;
            worst = std::max(worst, difference(world[i], theirs, height));
        }
    }
    EXPECT_LT(worst, 1e-4);
}

class RealClipTest : public ::testing::TestWithParam<const char*> {};

TEST_P(RealClipTest, EveryJointAndFrameAgrees) {
    const std::string path = std::string(ZK_BVH_MODELS) + "/" + GetParam() + ".bvh";
    std::ifstream stream(path, std::ios::binary);
    ASSERT_TRUE(stream) << path << " is missing: install assimp-testmodels or set ZK_BVH_MODELS";
    std::stringstream text;
    text << stream.rdbuf();
    expectAgreement(text.str(), 0.01);
}

INSTANTIATE_TEST_SUITE_P(Skeleton, RealClipTest, ::testing::Values("01_01", "01_03", "Boxing_Toes"),
                         [](const auto& test) { return std::string(test.param); });

TEST(Skeleton, EveryOrderOfRotationsAgrees) {
    std::string axes = "XYZ";
    do {
        SCOPED_TRACE(axes);
        const std::string rotations =
            std::string() + axes[0] + "rotation " + axes[1] + "rotation " + axes[2] + "rotation\n";
        expectAgreement("HIERARCHY\nROOT a\n{\nOFFSET 1 2 3\nCHANNELS 6 Yposition Xposition Zposition " +
                            rotations + "JOINT b\n{\nOFFSET 0 4 1\nCHANNELS 3 " + rotations +
                            "End Site\n{\nOFFSET 0 1 0\n}\n}\n}\nMOTION\nFrames: 2\nFrame Time: 0.01\n"
                            "7 8 9 10 20 30 40 50 60\n-1 -2 -3 -100 170 -80 300 -45 90\n",
                        0.5);
    } while (std::next_permutation(axes.begin(), axes.end()));
}

TEST(Skeleton, AxesWithoutPositionChannelKeepTheOffset) {
    const Clip clip = BvhReader::parse(
        "HIERARCHY\nROOT a\n{\nOFFSET 1 2 3\nCHANNELS 2 Zrotation Yposition\n}\n"
        "MOTION\nFrames: 1\nFrame Time: 0.01\n90 7\n",
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
