// What the settings can ask for besides clips, with the real adaptor and host.

#include <gtest/gtest.h>

#include <cmath>

#include "adaptor/max/ClassIds.h"
#include "tests/samples/mocap_core/StudioFixture.h"

namespace qvo::zmx::mocap {
namespace {

using adaptor::max::kTransformControlClassId;

constexpr char kTriangle[] = "v 0 0 0\nv 2 0 0\nv 0 3 0\nvt 0 0\nvt 1 0\nvt 0 1\nf 1/1 2/2 3/3\n";

class Studio : public StudioFixture {
  protected:
    /// A scene file with one camera and one box, and the open scene empty again.
    void writeModels(const std::string& scene) {
        for (const auto& [superClass, classId, name] :
             {std::tuple(CAMERA_CLASS_ID, SIMPLE_CAM_CLASS_ID, "Eye"),
              std::tuple(GEOMOBJECT_CLASS_ID, BOXOBJ_CLASS_ID, "Crate")}) {
            auto* const object = static_cast<Object*>(ip().CreateInstance(superClass, Class_ID(classId, 0)));
            ASSERT_NE(object, nullptr) << name;
            ip().CreateObjectNode(object)->SetName(const_cast<char*>(name));
        }
        ASSERT_TRUE(host.save(file(scene)));
        ASSERT_TRUE(host.reset());
    }

    /// True when a start with these settings ends with an error that says `cause`.
    static bool fails(const std::string& elements, const std::string& cause) {
        const std::string report = start(elements);
        return report.compare(0, 6, "error ") == 0 && report.find(cause) != std::string::npos;
    }

    static bool isOptimized(const std::string& name) {
        return node(name).GetTMController()->ClassID() == kTransformControlClassId;
    }
};

TEST_F(Studio, OptionsAreSetAsTheUserWould) {
    ASSERT_EQ(start("<option id='1027' value='off'/><option id='1030' value='off'/><clip>walk.bvh</clip>"),
              "ok");
    EXPECT_FALSE(isOptimized("walk_Hips"));
    EXPECT_EQ(host.undoNames(),
              (std::vector<std::string>{"Load motion clip walk", "Use optimized transform controller"}));
    EXPECT_NE(coreLog().find("Option 1027: 0"), std::string::npos) << "the core hears of it";

    host.undo();
    host.undo();  // the option
    ASSERT_EQ(start("<clip>walk.bvh</clip>"), "ok");
    EXPECT_TRUE(isOptimized("walk_Hips"));
    ASSERT_EQ(start("<convertAll/>"), "ok");
    EXPECT_FALSE(isOptimized("walk_Hips"));
    EXPECT_EQ(host.undoNames().front(), "Convert all controllers to default PRS controller");
    EXPECT_TRUE(
        fails("<option id='1029' value='on'/>", "zmx_maxconfig.xml:0: the adaptor has no option 1029"));
}

TEST_F(Studio, ModelsFollowTheirJoints) {
    write("hat.obj", kTriangle);
    ASSERT_EQ(start("<clip>walk.bvh</clip><mesh joint='Leg' metresPerUnit='0.5'>hat.obj</mesh>"), "ok");
    EXPECT_EQ(host.undoNames().size(), 1u);
    core::CoreNode* const hat = claimed("walk_hat");
    core::CoreNode::Snapshot_Mesh* const snapshot = hat->acquireMeshSnapshot(0.0);
    const util::CMesh mesh = snapshot->getMesh();
    hat->releaseMeshSnapshot(snapshot);
    ASSERT_EQ(mesh.vertices.size(), 3u);
    EXPECT_EQ(mesh.vertices[2].y, 3.0) << "the model's own numbers";
    EXPECT_EQ(mesh.textureFaces, (std::vector<int>{0, 1, 2}));
    for (const double seconds : {0.0, 40.5 / 4800}) {
        const Matrix4 leg = worldOf("walk_Leg", seconds);
        const Matrix4 world = worldOf("walk_hat", seconds);
        EXPECT_NEAR(world.m[3][1], leg.m[3][1], 1e-6) << seconds;
        EXPECT_NEAR(world.m[0][0], 0.5, 1e-6);
    }
    EXPECT_TRUE(fails("<mesh joint='Tail'>hat.obj</mesh>", "hat.obj:0: take \"walk\" has no joint \"Tail\""));
    EXPECT_EQ(claimedNodes(), "walk_Hips walk_Leg walk_hat ");
}

TEST_F(Studio, AMergedCameraFollowsTheHips) {
    writeModels("models.zms");
    EXPECT_TRUE(fails("<merge>models.zms</merge><clip>walk.bvh</clip><camera>Crate</camera>",
                      "\"Crate\" is no camera"));
    EXPECT_EQ(claimedNodes(), "");
    const auto nodesBefore = host.nodeCount();
    ASSERT_EQ(start("<merge>models.zms</merge><clip>walk.bvh</clip><camera>Eye</camera>"), "ok");
    EXPECT_EQ(host.nodeCount(), nodesBefore + 4);
    EXPECT_EQ(claimedNodes(), "walk_Hips walk_Leg Eye ");
    double angle = 0.0;
    for (const double seconds : {0.0, 40.5 / 4800}) {
        const Matrix4 eye = worldOf("Eye", seconds);
        const Matrix4 hips = worldOf("walk_Hips", seconds);
        double along = 0.0, distance = 0.0;
        const double unit = std::hypot(eye.m[2][0], eye.m[2][1], eye.m[2][2]);
        for (int i = 0; i < 3; ++i) {
            along -= eye.m[2][i] / unit * (hips.m[3][i] - eye.m[3][i]);
            distance = std::hypot(distance, hips.m[3][i] - eye.m[3][i]);
        }
        EXPECT_NEAR(along, distance, 1e-5) << "the camera looks along its negative third axis";
        EXPECT_NEAR(unit, 0.0254, 1e-6) << "not stretched: as long as the host's inch";
        core::CoreNode::Snapshot_Lens* const lens = claimed("Eye")->acquireLensSnapshot(seconds);
        EXPECT_NE(lens->getFieldOfView(), angle) << "keyed";
        angle = lens->getFieldOfView();
        claimed("Eye")->releaseLensSnapshot(lens);
    }
    EXPECT_NEAR(angle, 30.0, 15.0);

    ASSERT_TRUE(host.save(file("a.zms")));
    ASSERT_TRUE(host.open(file("a.zms")));
    EXPECT_EQ(claimedNodes(), "walk_Hips walk_Leg Eye ") << "the camera came back with its take";
    EXPECT_TRUE(fails("<merge>models.zms</merge><camera>Eye</camera>", "has a camera already"));
    EXPECT_TRUE(fails("<merge>none.zms</merge>", "none.zms:0: the host merged nothing"));
}

TEST_F(Studio, TakesOfMergedScenesCome) {
    ASSERT_EQ(start("<clip>walk.bvh</clip>"), "ok");
    ASSERT_TRUE(host.save(file("a.zms")));
    ASSERT_TRUE(host.reset());
    ASSERT_EQ(start("<merge>a.zms</merge><edit take='walk'><rename>run</rename></edit>"), "ok");
    EXPECT_EQ(takes(), "run ");
    EXPECT_EQ(claimedNodes(), "run_Hips run_Leg ");
}

}  // namespace
}  // namespace qvo::zmx::mocap
