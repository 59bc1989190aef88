#include "adaptor/max/controllers/Interpolation.h"
#include "adaptor/max/nodes/HostSpace.h"
#include "tests/adaptor/controllers/ControllerTest.h"
#include "util/Log.h"

namespace qvo::zmx::test {
namespace {

class TransformControlTest : public ControllerTest {
  protected:
    TransformControlTest() {
        control->setKey({0, 0, a});
        control->setKey({0, 100, b});
    }

    const Matrix3 a = pose(0.2f, 1, Point3(1, 2, 3));
    const Matrix3 b = pose(1.7f, 2, Point3(5, 0, -3));
    const Matrix3 parent = pose(-2, 3, Point3(-4, 5, 6));
    Used<TransformControl> control;
};

#define EXPECT_SAME_TRANSFORM(actual, expected) EXPECT_TRUE((actual).Equals((expected), 1e-4f))

TEST_F(TransformControlTest, EvaluatesInTheSpaceAroundTheParent) {
    Matrix3 uneven = ScaleMatrix(Point3(1.0f, 5.0f, 0.2f));
    uneven.RotateX(0.7f);
    for (const Matrix3& space : {Matrix3(1), parent, uneven}) {
        EXPECT_SAME_TRANSFORM(worldAt(*control, -50, space), a * space);
        EXPECT_SAME_TRANSFORM(worldAt(*control, 0, space), a * space);
        EXPECT_SAME_TRANSFORM(worldAt(*control, 40, space),
                              narrowed(blended(widened(a * space), widened(b * space), 0.4)));
        EXPECT_SAME_TRANSFORM(worldAt(*control, 200, space), b * space);
    }
    Matrix3 local(1);
    Interval valid = FOREVER;
    control->GetValue(60, &local, valid, CTRL_ABSOLUTE);
    EXPECT_SAME_TRANSFORM(local, narrowed(blended(widened(a), widened(b), 0.6)));
    EXPECT_EQ(valid, Interval(60, 60));

    const Matrix3 flat = ScaleMatrix(Point3(1, 0, 1));
    EXPECT_SAME_TRANSFORM(worldAt(*control, 40, flat), narrowed(blended(widened(a), widened(b), 0.4)) * flat);
}

TEST_F(TransformControlTest, CommandsOfThePacket) {
    const Matrix3 axes = pose(0.4f, 1, Point3(7, 8, 9));
    const Point3 move(1, 2, 3);
    const Point3 scale(2, 3, 4);
    const Quat turn(RotateYMatrix(0.9f));
    const struct {
        SetXFormPacket packet;
        Matrix3 change;
    } cases[] = {
        {SetXFormPacket(move, parent, axes), TransMatrix(move)},
        {SetXFormPacket(turn, TRUE, parent, axes), RotateYMatrix(0.9f)},
        {SetXFormPacket(scale, TRUE, parent, axes), ScaleMatrix(scale)},
    };
    for (const auto& c : cases)
        for (const GetSetMethod method : {CTRL_RELATIVE, CTRL_ABSOLUTE}) {
            const Matrix3 before = method == CTRL_RELATIVE ? worldAt(*control, 30) : Matrix3(1);
            SetXFormPacket packet = c.packet;
            control->SetValue(30, &packet, 1, method);
            EXPECT_SAME_TRANSFORM(worldAt(*control, 30),
                                  before * parent * Inverse(axes) * c.change * axes * Inverse(parent));
            EXPECT_EQ(control->keys().size(), 2);
        }
    setWorld(*control, 30, axes, parent);
    EXPECT_SAME_TRANSFORM(worldAt(*control, 30, parent), axes);
    animated([&] { setWorld(*control, 50, a, parent); });
    EXPECT_EQ(control->keys().size(), 3);
    EXPECT_SAME_TRANSFORM(worldAt(*control, 50, parent), a);
    const Matrix3 flat = ScaleMatrix(Point3(1, 0, 1));
    const std::size_t logged = util::Log::contents().size();
    for (int i = 0; i < 2; ++i)
        setWorld(*control, 30, axes, flat);
    EXPECT_SAME_TRANSFORM(worldAt(*control, 30), axes);
    const std::string said = util::Log::contents().substr(logged);
    EXPECT_NE(said.find("singular"), std::string::npos);
    EXPECT_EQ(said.find("singular"), said.rfind("singular")) << "told once";
}

TEST_F(TransformControlTest, ChangeOfParentKeepsTheWorldTransform) {
    const Matrix3 newParent = pose(1.1f, 0.3f, Point3(10, 20, 30));
    std::vector<Matrix3> before;
    for (TimeValue t = -20; t < 120; t += 20)
        before.push_back(worldAt(*control, t, parent));
    hold([&] { EXPECT_TRUE(control->ChangeParents(0, parent, newParent, a)); });
    for (TimeValue t = -20; t < 120; t += 20)
        EXPECT_SAME_TRANSFORM(worldAt(*control, t, newParent), before[static_cast<std::size_t>(t / 20 + 1)]);
    const Matrix3 changed = control->keys()[1].value;

    EXPECT_TRUE(control->ChangeParents(0, parent, ScaleMatrix(Point3(0, 1, 1)), a));
    EXPECT_EQ(control->keys()[1].value, changed) << "a flat parent changes nothing";

    EXPECT_TRUE(host.undo());
    EXPECT_SAME_TRANSFORM(worldAt(*control, 100, parent), before[6]);
    EXPECT_TRUE(host.redo());
    EXPECT_EQ(control->keys()[1].value, changed);

    Used<TransformControl> still;
    setWorld(*still, 0, a, parent);
    theHold.Begin();
    still->ChangeParents(0, parent, newParent, a);
    theHold.Cancel();
    EXPECT_SAME_TRANSFORM(worldAt(*still, 55, parent), a);
    still->ChangeParents(0, parent, newParent, a);
    EXPECT_SAME_TRANSFORM(worldAt(*still, 55, newParent), a);
}

}  // namespace
}  // namespace qvo::zmx::test
