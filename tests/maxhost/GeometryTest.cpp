#include <gtest/gtest.h>

#include <max.h>
#include <Eigen/Geometry>
#include <random>

namespace maxhost::test {
namespace {

/// The judge's form: column vectors, so a host matrix is transposed.
Eigen::Affine3d judged(const Matrix3& m) {
    Eigen::Affine3d result = Eigen::Affine3d::Identity();
    for (int i = 0; i < 3; ++i) {
        const Point3 row = m.GetRow(i);
        result.linear().col(i) = Eigen::Vector3d(row.x, row.y, row.z);
    }
    result.translation() = Eigen::Vector3d(m.GetTrans().x, m.GetTrans().y, m.GetTrans().z);
    return result;
}

Eigen::Quaterniond judged(const Quat& q) {
    return Eigen::Quaterniond(q.w, q.x, q.y, q.z);
}

/// Random rotation, signed scale from 0.1 to 10, translation up to 100.
class Shaker {
  public:
    Quat rotation() {
        std::normal_distribution<float> n;
        return Normalize(Quat(n(random_), n(random_), n(random_), n(random_)));
    }
    Point3 scale(bool mirrored) {
        std::uniform_real_distribution<float> exponent(-1, 1);
        const float sign = mirrored ? -1.0f : 1.0f;
        return Point3(std::pow(10.0f, exponent(random_)), std::pow(10.0f, exponent(random_)),
                      std::pow(10.0f, exponent(random_))) *
               sign;
    }
    Matrix3 matrix(bool mirrored) {
        std::uniform_real_distribution<float> place(-100, 100);
        Matrix3 m(1);
        m.Scale(scale(mirrored));
        RotateMatrix(m, rotation());
        m.SetTrans(Point3(place(random_), place(random_), place(random_)));
        return m;
    }

  private:
    std::mt19937 random_{7};
};

void expectNear(const Eigen::Affine3d& a, const Eigen::Affine3d& b, double tolerance, const char* what) {
    EXPECT_LT((a.matrix() - b.matrix()).cwiseAbs().maxCoeff(), tolerance) << what;
}

TEST(Geometry, ProductsAndInversesAgreeWithEigen) {
    Shaker shaker;
    for (int i = 0; i < 500; ++i) {
        const Matrix3 a = shaker.matrix(i % 2 != 0), b = shaker.matrix(i % 3 == 0);
        expectNear(judged(a * b), judged(b) * judged(a), 1e-2, "product");
        expectNear(judged(Inverse(a)), judged(a).inverse(), 1e-2, "inverse");
        expectNear(judged(a * Inverse(a)), Eigen::Affine3d::Identity(), 1e-3, "a x inverse a");
        EXPECT_EQ(a.Parity(), i % 2);
    }
}

TEST(Geometry, MatricesTurnRightHandedQuaternionsLeftHanded) {
    const Eigen::Vector3d axes[] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    Matrix3 (*const turns[])(float) = {RotateXMatrix, RotateYMatrix, RotateZMatrix};
    for (int i = 0; i < 3; ++i) {
        const Eigen::Affine3d right(Eigen::AngleAxisd(0.7, axes[i]));
        expectNear(judged(turns[i](0.7f)), right, 1e-6, "matrix");
        const Point3 axis(axes[i].x(), axes[i].y(), axes[i].z());
        Matrix3 left(1);
        Quat(AngAxis(axis, 0.7f)).MakeMatrix(left);
        expectNear(judged(left), right.inverse(), 1e-6, "quaternion");
        const AngAxis back{Quat(AngAxis(axis, 0.7f))};
        EXPECT_TRUE(back.axis.Equals(axis) && std::fabs(back.angle - 0.7f) < 1e-6f);
    }
}

TEST(Geometry, QuaternionsAgreeWithEigen) {
    Shaker shaker;
    for (int i = 0; i < 500; ++i) {
        const Quat p = shaker.rotation(), q = shaker.rotation();
        Matrix3 mp(1), mq(1);
        p.MakeMatrix(mp);
        q.MakeMatrix(mq);
        EXPECT_GT(std::fabs(Quat(mp) % p), 1 - 1e-6f);
        Matrix3 both(1);
        (p * q).MakeMatrix(both);
        EXPECT_TRUE(both.Equals(mp * mq, 1e-5f)) << "p first, then q";
        const float f = static_cast<float>(i) / 499.0f;
        const Eigen::Quaterniond wanted = judged(p).slerp(f, judged(q));
        EXPECT_GT(std::fabs(judged(Slerp(p, q, f)).dot(wanted)), 1 - 1e-6);
    }
}

TEST(Geometry, DecompositionGivesTheMatrixBack) {
    Shaker shaker;
    for (int i = 0; i < 500; ++i) {
        const bool mirrored = i % 2 != 0;
        const Matrix3 m = shaker.matrix(mirrored);
        AffineParts parts;
        decomp_affine(m, &parts);
        EXPECT_EQ(parts.f, mirrored ? -1.0f : 1.0f);
        const Eigen::Affine3d rebuilt =
            Eigen::Translation3d(parts.t.x, parts.t.y, parts.t.z) * judged(parts.q).conjugate() *
            Eigen::Scaling(Eigen::Vector3d(parts.k.x, parts.k.y, parts.k.z) * parts.f);
        expectNear(rebuilt, judged(m), 1e-4, "scale, rotation, translation");
    }
}

TEST(Geometry, DegenerateMatricesStayFinite) {
    const Point3 o(0, 0, 0), x(2, 0, 0), y(0, 3, 0), z(0, 0, 4);
    const Matrix3 cases[] = {Matrix3(o, o, o, o), Matrix3(x, o, o, o), Matrix3(o, y, o, o),
                             Matrix3(o, o, z, o), Matrix3(o, y, z, o), Matrix3(x, o, z, o),
                             Matrix3(x, x, z, o), Matrix3(x, x, x, o)};
    for (const Matrix3& m : cases) {
        EXPECT_TRUE(Inverse(m) == Matrix3(1));
        AffineParts parts;
        decomp_affine(m, &parts);
        for (int i = 0; i < 3; ++i)
            EXPECT_FLOAT_EQ(parts.k[i], Length(m.GetRow(i)));
        EXPECT_NEAR(parts.q % parts.q, 1, 1e-5);
        // Rows that do not contradict a rotation come back; the degenerate ones may turn anywhere.
        Matrix3 rotation(1);
        parts.q.MakeMatrix(rotation);
        if (m.GetRow(0) != m.GetRow(1)) {
            for (int i = 0; i < 3; ++i)
                EXPECT_TRUE((rotation.GetRow(i) * parts.k[i] * parts.f).Equals(m.GetRow(i), 1e-5f));
        }
    }
}

TEST(Geometry, BoxOfTransformedCorners) {
    Box3 box;
    EXPECT_TRUE(box.IsEmpty() && (box * RotateZMatrix(1)).IsEmpty());
    box += Point3(0, 0, 0);
    box += Point3(2, 1, 1);
    const Box3 turned = box * (RotateZMatrix(static_cast<float>(PI / 2)) * TransMatrix(Point3(10, 0, 0)));
    EXPECT_TRUE(turned.Min().Equals(Point3(9, 0, 0)) && turned.Max().Equals(Point3(10, 2, 1)));
}

}  // namespace
}  // namespace maxhost::test
