// The core's takes in a real scene: saved, reopened, merged, imported, and across a detach.

#include <gtest/gtest.h>

#include "tests/samples/mocap_core/StudioFixture.h"

namespace qvo::zmx::mocap {
namespace {

constexpr double kLastMoment = 40.5 / 4800;  // of the small clip: times are truncated to ticks

class SceneTakes : public StudioFixture {
  protected:
    static std::string tagOf(const std::string& name) {
        TSTR text;
        node(name).GetUserPropString(TSTR("ZMK_tag"), text);
        return text.data();
    }
    void saveAndReopen(const std::string& scene) {
        ASSERT_TRUE(host.save(file(scene))) << host.lastMessage();
        ASSERT_TRUE(host.reset());
        ASSERT_EQ(takes(), "");
        ASSERT_TRUE(host.open(file(scene))) << host.lastMessage();
    }
};

TEST_F(SceneTakes, ComeBackWithTheScene) {
    ASSERT_EQ(start("<clip>walk.bvh</clip><clip>walk.bvh</clip>"), "ok");
    node("walk_Leg").SetName(const_cast<char*>("knee"));
    saveAndReopen("a.zms");
    EXPECT_EQ(claimedNodes(), "walk_Hips knee walk-2_Hips walk-2_Leg ");
    EXPECT_EQ(tagOf("walk_Hips"), "") << "gathered";
    EXPECT_EQ(takes(), "walk walk-2 ");
    const std::string tag = tagOf("walk_Hips");
    saveAndReopen("a.zms");
    EXPECT_EQ(takes(), "walk walk-2 ");
    EXPECT_EQ(tagOf("walk_Hips"), tag);
    EXPECT_NEAR(heightAt("walk_Hips", kLastMoment), 1.01, 1e-6);
}

TEST_F(SceneTakes, CanBeEditedAfterTheyCameBack) {
    ASSERT_EQ(start("<clip>walk.bvh</clip>"), "ok");
    saveAndReopen("a.zms");
    ASSERT_EQ(start("<edit take='walk'><rename>run</rename><extend>walk.bvh</extend></edit>"), "ok");
    EXPECT_EQ(claimedNodes(), "run_Hips run_Leg ");
    EXPECT_NEAR(heightAt("run_Hips", 1.0), 1.01, 1e-6) << "two clips, one after the other";
    EXPECT_EQ(host.undoNames(), std::vector<std::string>{"Edit motion takes"});
    ASSERT_TRUE(host.undo());
    EXPECT_EQ(takes(), "walk ");
    EXPECT_EQ(claimedNodes(), "walk_Hips walk_Leg ");
    ASSERT_TRUE(host.redo());

    ip().SelectNode(&node("run_Leg"));
    ASSERT_TRUE(host.deleteSelection());
    write("walk.bvh", std::string(kSmallClip).replace(std::string(kSmallClip).find("101"), 3, "300"));
    ASSERT_EQ(start("<edit take='run'><bake/></edit>"), "ok");
    EXPECT_NEAR(heightAt("run_Leg", 1.0), 2.9, 1e-6) << "a new node in the place of the deleted one";
    saveAndReopen("b.zms");
    EXPECT_EQ(claimedNodes(), "run_Hips run_Leg ");
    EXPECT_NEAR(heightAt("run_Hips", kLastMoment), 3.0, 1e-6);
}

TEST_F(SceneTakes, MergesBringEachTakeOnce) {
    ASSERT_EQ(start("<clip>walk.bvh</clip>"), "ok");
    ASSERT_TRUE(host.save(file("a.zms")));
    ASSERT_TRUE(host.reset());
    write("run.bvh", kSmallClip);
    ASSERT_EQ(start("<clip>run.bvh</clip>"), "ok");
    ASSERT_TRUE(host.merge(file("a.zms")));
    EXPECT_EQ(takes(), "run walk ");
    EXPECT_EQ(claimedNodes(), "run_Hips run_Leg walk_Hips walk_Leg ");

    ASSERT_TRUE(host.merge(file("a.zms")));  // its nodes are new: another take
    EXPECT_EQ(takes(), "run walk walk-2 ");
    EXPECT_EQ(claimedNodes(), "run_Hips run_Leg walk_Hips walk_Leg walk-2_Hips walk-2_Leg ");
    saveAndReopen("b.zms");
    EXPECT_EQ(takes(), "run walk walk-2 ");
    ASSERT_TRUE(host.merge(file("b.zms")));  // while the open scene carries the same tags
    EXPECT_EQ(takes(), "run walk walk-2 run-2 walk-3 walk-2-2 ");
    EXPECT_EQ(createdNodes().size(), 12u);
}

TEST_F(SceneTakes, OfOneNameFromTwoScenesStayApart) {
    for (const char* scene : {"a.zms", "b.zms"}) {
        ASSERT_TRUE(host.reset());
        ASSERT_EQ(start("<clip>walk.bvh</clip>"), "ok");
        ASSERT_TRUE(host.save(file(scene)));
    }
    // Both at once: what was merged while no core was attached is gathered when one is.
    manager().detachCore();
    ASSERT_TRUE(host.merge(file("a.zms")));
    manager().loadCore();
    adaptor().gatherNodes();
    EXPECT_EQ(takes(), "walk walk-2 ");
    EXPECT_EQ(claimedNodes(), "walk_Hips walk_Leg walk-2_Hips walk-2_Leg ");
}

/// What was saved of a take before it changed comes in beside it, however it changed.
TEST_F(SceneTakes, MergesBringOlderStatesOfTakesInTheScene) {
    ASSERT_EQ(start("<clip>walk.bvh</clip>"), "ok");
    ASSERT_TRUE(host.save(file("a.zms")));
    ASSERT_TRUE(host.reset());
    ASSERT_EQ(start("<clip>walk.bvh</clip>"), "ok");
    ASSERT_TRUE(host.merge(file("a.zms")));
    EXPECT_EQ(takes(), "walk walk-2 ");  // renamed since it was read
    ASSERT_TRUE(host.merge(file("a.zms")));
    EXPECT_EQ(takes(), "walk walk-2 walk-3 ");

    ASSERT_TRUE(host.open(file("a.zms")));
    ASSERT_EQ(start("<edit take='walk'><rename>run</rename><extend>walk.bvh</extend></edit>"), "ok");
    EXPECT_EQ(takes(), "run ");
    ASSERT_TRUE(host.undo());
    ASSERT_TRUE(host.redo());  // to the id that it was saved under, not to that of the file
    EXPECT_EQ(takes(), "run ");
    ASSERT_TRUE(host.merge(file("a.zms")));
    EXPECT_EQ(takes(), "run walk ");
    node("walk_Leg").SetName(const_cast<char*>("knee"));
    EXPECT_EQ(takes(), "run walk ");
    ASSERT_TRUE(host.merge(file("a.zms")));
    EXPECT_EQ(takes(), "run walk walk-2 ");
    EXPECT_EQ(claimedNodes(), "run_Hips run_Leg walk_Hips knee walk-2_Hips walk-2_Leg ");
}

TEST_F(SceneTakes, SurviveImports) {
    ASSERT_EQ(start("<clip>walk.bvh</clip>"), "ok");
    const int rate = GetFrameRate();
    BroadcastNotification(NOTIFY_PRE_IMPORT);
    BroadcastNotification(NOTIFY_POST_IMPORT);
    EXPECT_EQ(takes(), "walk ");
    EXPECT_EQ(GetFrameRate(), rate);
    BroadcastNotification(NOTIFY_PRE_IMPORT);
    BroadcastNotification(NOTIFY_IMPORT_FAILED);
    ASSERT_EQ(start("<edit take='walk'><bake/></edit>"), "ok");
    ASSERT_TRUE(host.newScene(3));  // which keeps the nodes
    EXPECT_EQ(takes(), "walk ");
    ASSERT_TRUE(host.newScene());
    EXPECT_EQ(takes(), "");
}

TEST_F(SceneTakes, SurviveAFileThatTheHostRefuses) {
    write("slow.bvh",
          std::string(kSmallClip).replace(std::string(kSmallClip).find(".0083333"), 8, ".0166667"));
    ASSERT_EQ(start("<clip>slow.bvh</clip>"), "ok");
    const int slowRate = GetFrameRate();
    ASSERT_EQ(start("<clip>walk.bvh</clip>"), "ok");
    const int rate = GetFrameRate();
    write("damaged.zms", "no scene");
    ASSERT_FALSE(host.open(file("damaged.zms")));
    BroadcastNotification(NOTIFY_FILE_POST_OPEN);  // of a file that is no scene
    EXPECT_EQ(claimedNodes(), "slow_Hips slow_Leg walk_Hips walk_Leg ");
    EXPECT_EQ(takes(), "slow walk ");
    EXPECT_EQ(GetFrameRate(), rate);

    ASSERT_FALSE(host.open(file("damaged.zms")));
    ASSERT_TRUE(host.undo());
    EXPECT_EQ(takes(), "slow ");
    EXPECT_EQ(GetFrameRate(), slowRate);
    saveAndReopen("a.zms");
    EXPECT_EQ(takes(), "slow ");
    EXPECT_EQ(claimedNodes(), "slow_Hips slow_Leg ");

    BroadcastNotification(NOTIFY_FILE_PRE_OPEN);
    for (const char* const name : {"slow_Leg", "slow_Hips"})
        ip().DeleteNode(&node(name), TRUE, FALSE);
    BroadcastNotification(NOTIFY_FILE_OPEN_FAILED);  // after the old scene went
    EXPECT_EQ(takes(), "");
    EXPECT_EQ(claimedNodes(), "");
}

TEST_F(SceneTakes, AreTakenUpByTheNextCore) {
    ASSERT_EQ(start("<clip>walk.bvh</clip>"), "ok");  // and nothing is saved
    const int rate = GetFrameRate();
    manager().detachCore();
    EXPECT_EQ(createdNodes().size(), 0u);
    manager().loadCore();
    adaptor().gatherNodes();
    EXPECT_EQ(takes(), "walk ");
    EXPECT_EQ(claimedNodes(), "walk_Hips walk_Leg ");
    EXPECT_EQ(GetFrameRate(), rate);
    EXPECT_EQ(start("<edit take='walk'><bake/></edit>"), "ok");
}

TEST_F(SceneTakes, WhatIsLostIsNamed) {
    ASSERT_EQ(start("<clip>walk.bvh</clip><clip>walk.bvh</clip>"), "ok");
    manager().detachCore();
    // The state of a take is in the tag of its first node.
    node("walk_Hips").SetUserPropString(TSTR("ZMK_tag"), TSTR("<ZMK_tag><name>x</name></ZMK_tag>"));
    node("walk-2_Leg").SetUserPropString(TSTR("ZMK_tag"), TSTR(""));
    manager().loadCore();
    adaptor().gatherNodes();
    EXPECT_EQ(takes(), "walk-2 ");
    EXPECT_NE(coreLog().find("Take \"walk-2\" is back without Leg"), std::string::npos);
    const std::vector<std::string> shown = boxes.take();
    ASSERT_EQ(shown.size(), 1u);
    EXPECT_NE(shown[0].find("\n\nwalk_Hips\nwalk_Leg\n"), std::string::npos) << shown[0];
}

}  // namespace
}  // namespace qvo::zmx::mocap
