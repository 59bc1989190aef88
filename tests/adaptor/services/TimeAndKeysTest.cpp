#include "tests/support/AdaptorFixture.h"

namespace qvo::zmx::adaptor::max {
namespace {

using TimeServices = AdaptorFixture;

TEST_F(TimeServices, SecondsAreTruncatedToTicks) {
    struct Row {
        double seconds;
        TimeValue ticks;
    };
    const Row rows[] = {{0.0999, 479},    {-0.0999, -479},          {5.0 / 30.0, 800},
                        {1.0, 4800},      {1e30, TIME_PosInfinity}, {-1e30, TIME_NegInfinity},
                        {std::nan(""), 0}};
    for (const Row& row : rows) {
        adaptor().setTime(row.seconds);
        EXPECT_EQ(ip().GetTime(), row.ticks) << row.seconds;
    }
    adaptor().setAnimationRange({0.5, 2.0});
    EXPECT_EQ(ip().GetAnimRange().Start(), 2400);
    EXPECT_EQ(ip().GetAnimRange().End(), 9600);
    EXPECT_EQ(adaptor().getAnimationRange(), std::make_pair(0.5, 2.0));
}

TEST_F(TimeServices, TheMultiplierRefinesTheHostsGridOnly) {
    struct Row {
        int multiplier;
        int hostRate;
    };
    const Row rows[] = {{4, 120}, {4, 120}, {0, 120}, {-3, 120}, {160, 4800}, {1, 30}, {161, 30}, {31, 930}};
    for (const Row& row : rows) {
        adaptor().setFrameRateMultiplier(row.multiplier);
        EXPECT_EQ(GetFrameRate(), row.hostRate) << "multiplier " << row.multiplier;
        EXPECT_DOUBLE_EQ(adaptor().getFrameRate(), 30.0);
        EXPECT_DOUBLE_EQ(adaptor().getFrameDuration(), 1.0 / 30.0);
    }
    adaptor().letGoOfCore();
    EXPECT_EQ(GetFrameRate(), 30);
}

TEST_F(TimeServices, TheGridLeavesTheHostARateOfItsOwn) {
    SetTicksPerFrame(170);  // 28 frames a second, which would give 171 ticks
    adaptor().setFrameRateMultiplier(1);
    EXPECT_EQ(GetTicksPerFrame(), 170);
    FrameGrid grid;
    for (const int opened : {0, 25}) {
        SetFrameRate(30);
        grid.setMultiplier(4);
        if (opened) SetFrameRate(opened);  // as a scene that is opened meanwhile
        grid.letGo();
        EXPECT_EQ(GetFrameRate(), opened ? opened : 30);
        EXPECT_EQ(grid.userFrameRate(), opened ? opened : 30);
    }
}

TEST_F(TimeServices, KeyBatchesNestAndOnlyTheOutermostTouchesTheHost) {
    EXPECT_EQ(adaptor().endKeyBatch(), 0);  // unmatched
    EXPECT_FALSE(Animating());
    for (const bool animating : {false, true}) {
        if (animating) AnimateOn();
        adaptor().beginKeyBatch();
        adaptor().beginKeyBatch();
        EXPECT_TRUE(ip().IsSceneRedrawDisabled());
        adaptor().endKeyBatch();
        EXPECT_TRUE(Animating());
        EXPECT_TRUE(ip().IsSceneRedrawDisabled());
        adaptor().endKeyBatch();
        EXPECT_FALSE(ip().IsSceneRedrawDisabled());
        EXPECT_EQ(Animating() != 0, animating);
    }
    AnimateOff();
}

class TestOwnerList : public core::OwnerList {
  public:
    const std::vector<core::Owner*>& getOwners() override { return owners; }
    std::vector<core::Owner*> owners;
};

TEST_F(TimeServices, ABatchWithOwnersKeysTheirDrivenNodesWhereTheyAre) {
    TestOwner other("other");
    CMAXNode* const driven = makeHelper("driven");
    CMAXNode* const released = makeHelper("released");
    released->driven = false;
    auto* const foreign =
        static_cast<CMAXNode*>(adaptor().createHelperNode(&other, "foreign", nullptr, nullptr));
    Matrix3 placed(1);
    placed.SetTrans(Point3(1, 2, 3));
    driven->hostNode()->SetNodeTM(0, placed);

    TestOwnerList owners;
    owners.owners = {&owner};
    adaptor().setTime(1.0);
    adaptor().beginKeyBatchWith(owners);
    adaptor().endKeyBatch();
    EXPECT_EQ(driven->hostNode()->GetTMController()->NumKeys(), 1);
    EXPECT_EQ(driven->hostNode()->GetTMController()->GetKeyTime(0), 4800);
    EXPECT_EQ(driven->hostNode()->GetNodeTM(4800).GetTrans(), Point3(1, 2, 3));
    EXPECT_EQ(released->hostNode()->GetTMController()->NumKeys(), 0);
    EXPECT_EQ(foreign->hostNode()->GetTMController()->NumKeys(), 0);
}

}  // namespace
}  // namespace qvo::zmx::adaptor::max
