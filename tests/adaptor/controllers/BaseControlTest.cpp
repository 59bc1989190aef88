#include <limits>

#include "adaptor/max/plugin/UtilityManager.h"
#include "tests/adaptor/controllers/ControllerTest.h"
#include "tests/support/JournalCore.h"

namespace qvo::zmx::test {
namespace {

class BaseControlTest : public ControllerTest {};

TEST_F(BaseControlTest, KeyQueries) {
    Used<ScalarControl> control;
    bake(*control, {-10, 0, 10, 20});
    const struct {
        TimeValue t;
        int index;
        BOOL isKey;
        int left, right;  // index of the key found, -1 for none
    } cases[] = {
        {-10, 0, FALSE, -1, 1},  // intended: a key at a negative time counts as absent
        {0, 1, TRUE, 0, 2},     {20, 3, TRUE, 2, -1}, {5, -1, FALSE, -1, 0},  // intended: counts from -1
        {99, -1, FALSE, -1, 0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(control->GetKeyIndex(c.t), c.index) << c.t;
        EXPECT_EQ(control->IsKeyAtTime(c.t, 0), c.isKey) << c.t;
        TimeValue found = 777;
        EXPECT_EQ(control->GetNextKeyTime(c.t, NEXTKEY_LEFT, found), c.left >= 0) << c.t;
        EXPECT_EQ(found, c.left >= 0 ? control->GetKeyTime(c.left) : 777) << c.t;
        found = 777;
        EXPECT_EQ(control->GetNextKeyTime(c.t, NEXTKEY_RIGHT, found), c.right >= 0) << c.t;
        EXPECT_EQ(found, c.right >= 0 ? control->GetKeyTime(c.right) : 777) << c.t;
    }
    Tab<TimeValue> times;
    EXPECT_EQ(control->GetKeyTimes(times, Interval(0, 10), 0), 0);
    EXPECT_EQ(control->GetKeyTimes(times, FOREVER, 0), 0);
    ASSERT_EQ(times.Count(), 6);
    EXPECT_EQ(times[0], 0);
    EXPECT_EQ(times[5], 20);
}

TEST_F(BaseControlTest, IndexOutOfRangeDoesNothing) {
    Used<ScalarControl> control;
    bake(*control, {10});
    TrackHitTab hits;
    for (const int index : {-1, 1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        EXPECT_EQ(control->GetKeyTime(index), 0);
        control->DeleteKeyByIndex(index);
        control->SelectKeyByIndex(index, TRUE);
        TrackHitRecord hit(static_cast<DWORD>(index));
        hits.Append(1, &hit);
    }
    control->SelectKeys(hits, SELKEYS_SELECT);
    EXPECT_EQ(described(*control), "10=10");
}

TEST_F(BaseControlTest, SelectionAndDeletion) {
    Used<ScalarControl> control;
    bake(*control, {1, 2, 3, 4});
    TrackHitTab hits;
    for (const DWORD index : {0u, 2u}) {
        TrackHitRecord hit(index);
        hits.Append(1, &hit);
    }
    control->SelectKeys(hits, SELKEYS_SELECT);
    EXPECT_EQ(described(*control), "1*=1 2=2 3*=3 4=4");
    hits.Delete(0, 1);
    control->SelectKeys(hits, SELKEYS_DESELECT);
    EXPECT_EQ(described(*control), "1*=1 2=2 3=3 4=4");
    control->SelectKeys(hits, SELKEYS_CLEARKEYS | SELKEYS_SELECT);
    EXPECT_EQ(described(*control), "1=1 2=2 3=3 4=4");

    hold([&] { control->DeleteKeys(TRACK_DOALL); });
    EXPECT_TRUE(control->keys().empty());
    EXPECT_TRUE(host.undoNames().empty()) << "intended: deleting all keys is not recorded";
}

TEST_F(BaseControlTest, ValuesBetweenAndOutsideTheKeys) {
    Used<ScalarControl> control;
    EXPECT_EQ(valueAt(*control, 50), 0.0f);
    setValue(*control, 50, 3);
    EXPECT_EQ(valueAt(*control, 99), 3.0f) << "a value without keys holds at every time";
    control->setKey({0, 100, 10});
    EXPECT_EQ(valueAt(*control, -5), 10.0f);
    control->setKey({0, 200, 20});
    for (const auto& [t, value] :
         {std::pair{0, 10.0f}, {100, 10.0f}, {150, 15.0f}, {200, 20.0f}, {300, 20.0f}})
        EXPECT_EQ(valueAt(*control, t), value) << t;

    float sum = 1;
    Interval valid = FOREVER;
    control->GetValue(150, &sum, valid, CTRL_RELATIVE);
    EXPECT_EQ(sum, 16.0f);
    EXPECT_EQ(valid, Interval(150, 150));
}

/// The cached time -1 stands for "nothing cached", so time -1 itself is always asked of the table.
TEST_F(BaseControlTest, CachedValueIsUsedForItsTimeOnly) {
    Used<ScalarControl> control;
    bake(*control, {-10, 0, 100});
    EXPECT_EQ(valueAt(*control, -1), -1.0f);
    setValue(*control, 50, 7);
    EXPECT_EQ(valueAt(*control, 50), 7.0f);
    EXPECT_EQ(valueAt(*control, -1), -1.0f);
    EXPECT_EQ(valueAt(*control, 50), 50.0f) << "lost at the first evaluation of another time";
    setValue(*control, 150, 7);
    EXPECT_EQ(valueAt(*control, 200), 7.0f) << "reused: both times lie after the last key";
    control->setKey({0, 100, 8});
    EXPECT_EQ(valueAt(*control, 200), 8.0f) << "stale after an edit";
    control->setKey({0, 200, 5});
    setValue(*control, 10, 1, CTRL_RELATIVE);
    EXPECT_EQ(valueAt(*control, 10), 1.8f) << "adds to the table's value, not to a stale one";
}

TEST_F(BaseControlTest, ValuesThatAreNotFiniteAreRefused) {
    Used<ScalarControl> scalar;
    setValue(*scalar, 0, 3);
    setValue(*scalar, 0, std::numeric_limits<float>::infinity());
    EXPECT_EQ(valueAt(*scalar, 0), 3.0f);
    scalar->setKey({0, 0, -3e38f});
    scalar->setKey({0, 10, 3e38f});
    EXPECT_EQ(valueAt(*scalar, 4), -3e38f) << "the line is steeper than a float can say";

    Used<TransformControl> transform;
    Matrix3 broken(1);
    broken.SetRow(3, Point3(std::numeric_limits<float>::quiet_NaN(), 0.0f, 0.0f));
    setWorld(*transform, 0, broken);
    EXPECT_EQ(worldAt(*transform, 0), Matrix3(1));
}

TEST_F(BaseControlTest, EveryChangeIsTold) {
    Used<ScalarControl> control;
    const auto told = [&](auto change) {
        control.user().changes = 0;
        change();
        return control.user().changes > 0;
    };
    TrackHitTab hits;
    EXPECT_TRUE(told([&] { control->setKey({0, 10, 1}); }));
    EXPECT_TRUE(told([&] { setValue(*control, 5, 1); }));
    EXPECT_TRUE(told([&] { control->SelectKeys(hits, SELKEYS_CLEARKEYS); }));
    EXPECT_TRUE(told([&] { control->SelectKeyByIndex(0, TRUE); }));
    EXPECT_TRUE(told([&] { control->DeleteTime(Interval(5, 6), 0); }));
    EXPECT_TRUE(told([&] { control->DeleteKeyAtTime(9); }));
    EXPECT_TRUE(told([&] { control->DeleteKeys(TRACK_DOALL); }));
    EXPECT_FALSE(told([&] { valueAt(*control, 5); }));
}

TEST_F(BaseControlTest, DeleteTime) {
    constexpr TimeValue kEnd = TIME_PosInfinity;
    const struct {
        const char* name;
        std::vector<TimeValue> keys;
        Interval cut;
        DWORD flags;
        const char* rest;
    } cases[] = {
        {"EndsStay", {0, 10, 15, 20, 30}, {10, 20}, TIME_NOSLIDE, "0=0 10=10 20=20 30=30"},
        {"LeftEnd", {0, 10, 15, 20, 30}, {10, 20}, TIME_NOSLIDE | TIME_INCLEFT, "0=0 20=20 30=30"},
        {"RightEnd", {0, 10, 15, 20, 30}, {10, 20}, TIME_NOSLIDE | TIME_INCRIGHT, "0=0 10=10 30=30"},
        {"LaterKeysSlide", {0, 15, 25, 30}, {10, 20}, 0, "0=0 15=25 20=30"},
        {"EndSlidesToTheStart", {0, 20, 30}, {10, 20}, 0, "0=0 10=20 20=30"},
        {"TheKeyAtTheStartWins", {10, 20, 30}, {10, 20}, 0, "10=10 20=30"},
        {"OneInstant", {10, 20}, {10, 10}, TIME_INCLEFT, "20=20"},
        {"OneInstantFromTheRight", {10, 20}, {10, 10}, TIME_INCRIGHT, "20=20"},
        {"OneInstantOpen", {10, 20}, {10, 10}, 0, "10=10 20=20"},
        {"ToTheEndOfTime", {0, 10, 20}, {10, kEnd}, TIME_INCRIGHT, "0=0 10=10"},
        {"LastInstantOfTime", {0, kEnd}, {-5, kEnd}, TIME_INCRIGHT, ""},
        {"FromTheStartOfTime", {5, 20}, {TIME_NegInfinity, 10}, TIME_NOSLIDE, "20=20"},
        {"Inverted", {0, 10, 20}, {20, 0}, 0, "0=0 10=10 20=20"},
        {"Empty", {0, 10, 20}, NEVER, TIME_INCLEFT, "0=0 10=10 20=20"},
    };
    for (const auto& c : cases) {
        Used<ScalarControl> control;
        bake(*control, c.keys);
        const std::string before = described(*control);
        hold([&] { control->DeleteTime(c.cut, c.flags); });
        EXPECT_EQ(described(*control), c.rest) << c.name;
        EXPECT_EQ(host.undoNames().empty(), described(*control) == before) << c.name;
        GetCOREInterface()->FlushUndoBuffer();
    }
}

TEST_F(BaseControlTest, KeysCanBeHiddenFromTheHost) {
    Used<ScalarControl> control;
    bake(*control, {10, 20});
    std::vector<std::string> questions;
    JournalCore core([&](const std::string& note) { questions.push_back(note); });
    core.wantsEvents = true;
    UtilityManager::instance().core = &core;
    EXPECT_EQ(control->NumKeys(), 0);
    TimeValue next = 0;
    EXPECT_FALSE(control->GetNextKeyTime(10, NEXTKEY_RIGHT, next));
    EXPECT_EQ(questions, (std::vector<std::string>(2, "queryEvent")));
    questions.clear();
    Used<ScalarControl> copy;
    copy->Copy(&*control);
    EXPECT_EQ(copy->keys().last().time, 10) << "one frame is longer than the range";
    copy.end();
    EXPECT_TRUE(questions.empty());
    UtilityManager::instance().core = nullptr;
    EXPECT_EQ(control->NumKeys(), 2);
}

TEST_F(BaseControlTest, CopyBakesOneKeyPerFrame) {
    Used<Control> prs(NewDefaultMatrix3Controller());
    animated([&] {
        setWorld(*prs, 100, pose(0, 1, Point3(0, 0, 0)));
        setWorld(*prs, 580, pose(1.5f, 2, Point3(30, 0, 0)));
    });
    Used<TransformControl> control;
    control->setKey({0, -7, Matrix3(1)});
    hold([&] { control->Copy(&*prs); });
    EXPECT_TRUE(host.undoNames().empty());
    ASSERT_EQ(control->keys().size(), 4);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(control->GetKeyTime(i), 100 + 160 * i);
        EXPECT_TRUE(worldAt(*control, 100 + 160 * i).Equals(worldAt(*prs, 100 + 160 * i), 1e-4f));
    }
    control->Copy(nullptr);
    control->Copy(&*control);
    Used<ScalarControl> otherType;
    control->Copy(&*otherType);
    EXPECT_EQ(control->keys().size(), 4);

    Used<Control> still(NewDefaultMatrix3Controller());
    setWorld(*still, 0, pose(1, 1, Point3(1, 2, 3)));
    control->Copy(&*still);
    EXPECT_TRUE(control->keys().empty());
    EXPECT_TRUE(worldAt(*control, 123).Equals(worldAt(*still, 0), 1e-5f));
}

TEST_F(BaseControlTest, ClonesAreIndependent) {
    Used<ScalarControl> control;
    bake(*control, {10, 20});
    setValue(*control, 12, 5);
    DefaultRemapDir remap;
    Used<ScalarControl> clone(dynamic_cast<ScalarControl*>(control->Clone(remap)));
    EXPECT_EQ(valueAt(*clone, 12), 5.0f);
    control->DeleteKeys(TRACK_DOALL);
    EXPECT_EQ(described(*clone), "10=10 20=20");
    clone->setKey({0, 30, 1});
    EXPECT_TRUE(control->keys().empty());
}

}  // namespace
}  // namespace qvo::zmx::test
