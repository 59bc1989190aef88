#include "adaptor/max/controllers/Interpolation.h"

#include <gtest/gtest.h>

#include <Eigen/Geometry>
#include <cmath>

namespace qvo::zmx::adaptor::max {
namespace {

using Eigen::AngleAxisd;
using Eigen::Matrix3d;
using Eigen::Quaterniond;
using Eigen::Vector3d;

constexpr double kTolerance = 1e-9;

/// Row vectors: the rows are the scaled images of the axes, which are the columns of Eigen's rotation.
Matrix4 transform(const Quaterniond& rotation, const Vector3d& scale,
                  const Vector3d& move = Vector3d::Zero()) {
    const Matrix3d images = rotation.toRotationMatrix() * scale.asDiagonal();
    Matrix4 matrix = kIdentityMatrix4;
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 3; ++column) {
            matrix.m[row][column] = images(column, row);
            matrix.m[3][column] = move(column);
        }
    return matrix;
}

Quaterniond turn(double degrees, const Vector3d& axis) {
    return Quaterniond(AngleAxisd(degrees * EIGEN_PI / 180, axis.normalized()));
}

testing::AssertionResult isNear(const Matrix4& actual, const Matrix4& expected, double tolerance) {
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 3; ++column)
            if (!(std::abs(actual.m[row][column] - expected.m[row][column]) <= tolerance))
                return testing::AssertionFailure()
                       << "[" << row << "][" << column << "] is " << actual.m[row][column] << ", expected "
                       << expected.m[row][column];
    return testing::AssertionSuccess();
}

struct BlendCase {
    const char* name;
    Quaterniond rotationOfA, rotationOfB;
    Vector3d scaleOfA, scaleOfB;
};

const Vector3d kOnes(1, 1, 1);
const Vector3d kSlant(1, 2, -3);

const BlendCase kBlendCases[] = {
    {"NoRotation", turn(0, kSlant), turn(0, kSlant), {1, 2, 3}, {3, 2, 1}},
    {"SameRotation", turn(77, kSlant), turn(77, kSlant), kOnes, {2, 2, 2}},
    {"RightAngle", turn(0, kSlant), turn(90, Vector3d::UnitZ()), kOnes, kOnes},
    {"LongWayRound", turn(-170, kSlant), turn(170, kSlant), kOnes, {1, 5, 1}},
    {"NearlyHalfTurn", turn(0, kSlant), turn(179.999, kSlant), kOnes, kOnes},
    {"TinyTurn", turn(30, kSlant), turn(30.000001, kSlant), kOnes, kOnes},
    {"HalfTurnsAboutTwoAxes", turn(180, Vector3d::UnitX()), turn(180, {1, 0.2, 0}), kOnes, kOnes},
    {"NegativeTrace", turn(150, Vector3d::UnitY()), turn(160, {0.1, 0, 1}), {0.01, 1, 100}, kOnes},
    {"BothMirrored", turn(20, kSlant), turn(80, {3, 1, 0}), {-1, 1, 1}, {-2, 1, 1}},
    {"BothMirroredOnAllAxes", turn(20, kSlant), turn(80, {3, 1, 0}), {-1, -2, -3}, {-2, -1, -1}},
    {"OneAxisFlatInBoth", turn(20, kSlant), turn(80, {3, 1, 0}), {1, 0, 1}, {2, 0, 1}},
    {"FlatThenFull", turn(0, kSlant), turn(90, Vector3d::UnitX()), {1, 1, 0}, {1, 1, 2}},
    {"MirroredThenFlat", turn(10, kSlant), turn(50, kSlant), {1, 1, -1}, {1, 1, 0}},
    {"OneAxisLeft", turn(0, kSlant), turn(90, Vector3d::UnitZ()), {1, 0, 0}, {2, 0, 0}},
    {"PointThenFull", turn(40, kSlant), turn(90, Vector3d::UnitZ()), {0, 0, 0}, {1, 2, 3}},
    {"PointInBoth", turn(40, kSlant), turn(90, Vector3d::UnitZ()), {0, 0, 0}, {0, 0, 0}},
};

/// Eigen's spherical interpolation is the judge. A matrix that is a point has no rotation of its own: it
/// keeps the other one's.
TEST(Interpolation, FollowsTheShorterArcAtAUniformRate) {
    for (const BlendCase& c : kBlendCases) {
        const Quaterniond from = c.scaleOfA.isZero() ? c.rotationOfB : c.rotationOfA;
        const Vector3d moveA(1, -2, 3);
        const Vector3d moveB(5, 6, -7);
        const Matrix4 a = transform(c.rotationOfA, c.scaleOfA, moveA);
        const Matrix4 b = transform(c.rotationOfB, c.scaleOfB, moveB);
        for (const double f : {0.0, 0.001, 0.25, 0.5, 0.9, 1.0}) {
            const Matrix4 expected =
                transform(from.slerp(f, c.rotationOfB), c.scaleOfA + f * (c.scaleOfB - c.scaleOfA),
                          moveA + f * (moveB - moveA));
            EXPECT_TRUE(
                isNear(blended(a, b, f), expected, kTolerance * c.scaleOfA.cwiseMax(kOnes).maxCoeff()))
                << c.name << " at " << f;
        }
    }
}

TEST(Interpolation, MirrorOnOneSideOnlyPassesThroughZero) {
    const Matrix4 a = transform(turn(0, kSlant), {-1, -1, -1});
    const Matrix4 b = transform(turn(0, kSlant), {1, 1, 1});
    EXPECT_TRUE(isNear(blended(a, b, 0.25), transform(turn(0, kSlant), {-0.5, -0.5, -0.5}), kTolerance));
}

}  // namespace
}  // namespace qvo::zmx::adaptor::max
