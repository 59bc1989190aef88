#include <map>
#include <random>

#include "tests/maxhost/HostFixture.h"
#include "tests/maxhost/TestTarget.h"

namespace maxhost::test {
namespace {

class ControllersTest : public HostFixture {
  protected:
    void SetUp() override {
        HostFixture::SetUp();
        number = NewDefaultFloatController();
        transform = NewDefaultMatrix3Controller();
        number->SetAFlag(A_LOCK_TARGET);
        transform->SetAFlag(A_LOCK_TARGET);
    }
    void TearDown() override {
        undo.reset();
        number->DeleteMe();
        transform->DeleteMe();
        HostFixture::TearDown();
    }

    static void set(Control* control, TimeValue t, float value, int commit = 1,
                    GetSetMethod how = CTRL_ABSOLUTE) {
        control->SetValue(t, &value, commit, how);
    }
    static float get(Control* control, TimeValue t) {
        float value = 0;
        Interval valid = FOREVER;
        control->GetValue(t, &value, valid, CTRL_ABSOLUTE);
        return value;
    }
    void key(TimeValue t, float value) {
        AnimateOn();
        set(number, t, value);
        AnimateOff();
    }
    static void place(Control* control, TimeValue t, const Matrix3& world,
                      const Matrix3& parent = Matrix3(1)) {
        SetXFormPacket packet(world, parent);
        control->SetValue(t, &packet, 1, CTRL_ABSOLUTE);
    }
    static Matrix3 worldOf(Control* control, TimeValue t, const Matrix3& parent = Matrix3(1)) {
        Matrix3 tm = parent;
        Interval valid = FOREVER;
        control->GetValue(t, &tm, valid, CTRL_RELATIVE);
        return tm;
    }
    static std::map<TimeValue, float> keysOf(Control* control) {
        std::map<TimeValue, float> keys;
        Tab<TimeValue> times;
        EXPECT_EQ(control->GetKeyTimes(times, FOREVER, 0), control->NumKeys());
        for (int i = 0; i < times.Count(); ++i)
            keys[times[i]] = get(control, times[i]);
        return keys;
    }
    static Matrix3 turned(const Quat& q, const Point3& scale, const Point3& at) {
        Matrix3 tm = ScaleMatrix(scale);
        RotateMatrix(tm, q);
        tm.SetTrans(at);
        return tm;
    }

    Control* number = nullptr;
    Control* transform = nullptr;
};

TEST_F(ControllersTest, KeysInAnyOrderInterpolateLinearly) {
    set(number, 50, 7);
    EXPECT_EQ(number->NumKeys(), 0);
    EXPECT_EQ(get(number, -1000), 7);
    for (const TimeValue t : {400, -100, 200, 200})
        key(t, static_cast<float>(t));
    const std::map<TimeValue, float> wanted = {{-100, -100.0f}, {200, 200.0f}, {400, 400.0f}};
    EXPECT_EQ(keysOf(number), wanted);

    const struct {
        TimeValue t;
        float value;
        Interval valid;
    } rows[] = {{-500, -100, Interval(TIME_NegInfinity, -100)},
                {-100, -100, Interval(TIME_NegInfinity, -100)},
                {50, 50, Interval(50, 50)},
                {200, 200, Interval(200, 200)},
                {401, 400, Interval(400, TIME_PosInfinity)}};
    for (const auto& row : rows) {
        float value = 0.5f;
        Interval valid = FOREVER;
        number->GetValue(row.t, &value, valid, CTRL_RELATIVE);
        EXPECT_FLOAT_EQ(value, row.value + 0.5f) << row.t;
        EXPECT_TRUE(valid == row.valid) << row.t;
    }

    TimeValue next = 0;
    EXPECT_TRUE(number->GetNextKeyTime(150, NEXTKEY_RIGHT, next) && next == 200);
    EXPECT_TRUE(number->GetNextKeyTime(200, NEXTKEY_RIGHT, next) && next == 400);
    EXPECT_TRUE(number->GetNextKeyTime(200, NEXTKEY_LEFT, next) && next == -100);
    EXPECT_FALSE(number->GetNextKeyTime(400, NEXTKEY_RIGHT, next));
    EXPECT_TRUE(number->IsKeyAtTime(-100, 0) && number->GetKeyIndex(201) == -1);
    EXPECT_TRUE(number->GetTimeRange(0) == Interval(-100, 400));
}

TEST_F(ControllersTest, SetsOutsideAnimateModeShiftAllKeys) {
    key(0, 1);
    key(100, 3);
    set(number, 50, 5);
    EXPECT_EQ(get(number, 0), 4);
    EXPECT_EQ(get(number, 100), 6);
    set(number, 100, 1, 1, CTRL_RELATIVE);
    EXPECT_EQ(get(number, 0), 5);
    AnimateOn();
    set(number, 10, 99, 0);
    set(number, 20, std::numeric_limits<float>::infinity());
    EXPECT_EQ(number->NumKeys(), 2) << "nothing for an uncommitted or non-finite value";
    set(number, 100, 1, 1, CTRL_RELATIVE);
    EXPECT_EQ(get(number, 100), 8);
    EXPECT_EQ(get(number, 0), 5);
}

TEST_F(ControllersTest, AnimateModeSurvivesNestedSuspensions) {
    AnimateOn();
    SuspendAnimate();
    EXPECT_FALSE(Animating());
    AnimateOn();
    SuspendAnimate();
    EXPECT_FALSE(Animating());
    ResumeAnimate();
    EXPECT_TRUE(Animating());
    AnimateOff();
    ResumeAnimate();
    EXPECT_TRUE(Animating());
    ResumeAnimate();
    EXPECT_EQ(takeFaults().size(), 1u);
}

TEST_F(ControllersTest, AHoldRecordsAllEditsOnce) {
    key(0, 1);
    TestTarget& listener = *new TestTarget(1);
    listener.ReplaceReference(0, number);
    using Keys = std::map<TimeValue, float>;
    const Keys before = keysOf(number);
    theHold.Begin();
    key(100, 2);
    key(0, 5);
    number->DeleteTime(Interval(0, 50), TIME_INCLEFT);
    key(10, 3);
    theHold.Restore();
    EXPECT_EQ(keysOf(number), before);
    key(200, 9);
    accept();
    const Keys after = {{0, 1.0f}, {200, 9.0f}};
    EXPECT_EQ(keysOf(number), after);
    const int messages = listener.count(REFMSG_CHANGE);
    undo.undo();
    EXPECT_EQ(keysOf(number), before);
    EXPECT_GT(listener.count(REFMSG_CHANGE), messages);
    undo.redo();
    EXPECT_EQ(keysOf(number), after);

    theHold.Begin();
    number->DeleteKeys(TRACK_DOALL);
    set(number, 0, 77);
    theHold.Cancel();
    EXPECT_EQ(keysOf(number), after);
    undo.undo();
    EXPECT_EQ(keysOf(number), before);

    // With a copy of the table for each key this would take gigabytes.
    theHold.Begin();
    for (TimeValue t = 1; t <= 50000; ++t)
        key(t, 1);
    accept();
    undo.undo();
    EXPECT_EQ(keysOf(number), before);
    listener.DeleteMe();
}

struct Cut {
    Interval iv;
    DWORD flags;
    std::map<TimeValue, float> left;  ///< of keys at 0, 100, 200, 300 with values 0 to 3
};

TEST_F(ControllersTest, DeleteTimeTakesOpenEndsUnlessTold) {
    const Cut cuts[] = {
        {Interval(100, 200), 0, {{0, 0.f}, {100, 1.f}, {200, 3.f}}},
        {Interval(100, 200), TIME_NOSLIDE, {{0, 0.f}, {100, 1.f}, {200, 2.f}, {300, 3.f}}},
        {Interval(100, 200), TIME_INCLEFT, {{0, 0.f}, {100, 2.f}, {200, 3.f}}},
        {Interval(100, 200), TIME_INCRIGHT | TIME_NOSLIDE, {{0, 0.f}, {100, 1.f}, {300, 3.f}}},
        {Interval(50, 250), 0, {{0, 0.f}, {100, 3.f}}},
        {Interval(100, TIME_PosInfinity), TIME_INCRIGHT, {{0, 0.f}, {100, 1.f}}},
        {Interval(TIME_NegInfinity, 150), TIME_NOSLIDE, {{200, 2.f}, {300, 3.f}}},
        {Interval(200, 100), TIME_INCLEFT, {{0, 0.f}, {100, 1.f}, {200, 2.f}, {300, 3.f}}},
        {NEVER, TIME_INCLEFT, {{0, 0.f}, {100, 1.f}, {200, 2.f}, {300, 3.f}}},
    };
    for (const Cut& cut : cuts) {
        number->DeleteKeys(TRACK_DOALL);
        for (int i = 0; i < 4; ++i)
            key(100 * i, static_cast<float>(i));
        number->DeleteTime(cut.iv, cut.flags);
        EXPECT_EQ(keysOf(number), cut.left) << cut.iv.Start() << " to " << cut.iv.End() << ", " << cut.flags;
    }
}

TEST_F(ControllersTest, TransformComesBackUnderAnyParent) {
    std::mt19937 random(3);
    std::normal_distribution<float> n;
    std::uniform_real_distribution<float> size(0.2f, 5);
    const auto any = [&](bool mirrored, bool even) {
        const float s = size(random) * (mirrored ? -1.0f : 1.0f);
        const Point3 scale = even ? Point3(s, s, s) : Point3(s, size(random) * s, size(random) * s);
        const Quat q = Normalize(Quat(n(random), n(random), n(random), n(random)));
        return turned(q, scale, Point3(n(random), n(random), n(random)) * 10);
    };
    AnimateOn();
    for (int i = 0; i < 200; ++i) {
        // An evenly scaled parent, so that the local transform has no shear to lose.
        const Matrix3 parent = any(i % 4 == 1, true), world = any(i % 2 != 0, false);
        place(transform, i * 160, world, parent);
        EXPECT_TRUE(worldOf(transform, i * 160, parent).Equals(world, 1e-3f)) << i;
    }
    EXPECT_EQ(transform->NumKeys(), NOT_KEYFRAMEABLE);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(transform->SubAnim(i)->NumKeys(), 200);
    place(transform, 80, ScaleMatrix(Point3(1.0f, 1.0f, std::numeric_limits<float>::infinity())));
    EXPECT_EQ(transform->SubAnim(0)->NumKeys(), 200) << "nothing is set from a non-finite matrix";
}

TEST_F(ControllersTest, ChangedParentKeepsTheWorldAtEveryKey) {
    const Matrix3 oldParent = turned(Quat(1.0f, Point3(0, 1, 0)), Point3(1, 1, 1), Point3(10, 0, 0));
    const Matrix3 newParent = turned(Quat(-2.0f, Point3(1, 0, 0)), Point3(-3, -3, -3), Point3(0, 4, 0));
    AnimateOn();
    std::map<TimeValue, Matrix3> world;
    for (TimeValue t = 0; t < 1000; t += 100) {
        const float f = static_cast<float>(t) / 100.0f;
        place(transform, t, turned(Quat(f, Point3(0, 0, 1)), Point3(1.0f, 2.0f, 1 + f), Point3(f, f, 0.0f)),
              oldParent);
        world[t] = worldOf(transform, t, oldParent);
    }
    theHold.Begin();
    EXPECT_TRUE(transform->ChangeParents(0, oldParent, newParent, world[0]));
    accept();
    for (const auto& [t, tm] : world)
        EXPECT_TRUE(worldOf(transform, t, newParent).Equals(tm, 1e-4f)) << t;
    EXPECT_EQ(transform->SubAnim(0)->NumKeys(), 10);
    EXPECT_TRUE(transform->ChangeParents(0, newParent, ScaleMatrix(Point3(1, 0, 1)), world[0]));
    EXPECT_TRUE(worldOf(transform, 0, newParent).Equals(world[0], 1e-4f))
        << "a singular parent changes nothing";
    undo.undo();
    for (const auto& [t, tm] : world)
        EXPECT_TRUE(worldOf(transform, t, oldParent).Equals(tm, 1e-4f)) << t;
}

TEST_F(ControllersTest, CloneHasPartsOfItsOwn) {
    AnimateOn();
    place(transform, 100, TransMatrix(Point3(1, 0, 0)));
    theHold.Begin();
    DefaultRemapDir remap;
    auto* const clone = static_cast<Control*>(remap.CloneRef(transform));
    accept();
    EXPECT_TRUE(undo.undoNames().empty()) << "building a clone is no edit";
    place(clone, 100, TransMatrix(Point3(2, 0, 0)));
    EXPECT_TRUE(worldOf(transform, 100).GetTrans().Equals(Point3(1, 0, 0)));
    EXPECT_TRUE(worldOf(clone, 100).GetTrans().Equals(Point3(2, 0, 0)));
    EXPECT_FALSE(clone->AssignController(number, 0)) << "a number is no position";
    clone->DeleteMe();
}

}  // namespace
}  // namespace maxhost::test
