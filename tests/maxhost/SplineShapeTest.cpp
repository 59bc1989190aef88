#include <algorithm>
#include <random>

#include "maxhost/src/objects/SplineShape.h"
#include "tests/maxhost/ObjectsFixture.h"
#include "tests/maxhost/ViewRig.h"

namespace maxhost::test {

namespace {

using Polygon = std::vector<Point3>;

const Polygon kSquare{{0, 0, 0}, {10, 0, 0}, {10, 0, 10}, {0, 0, 10}};

/// The judge: a curve as 20,000 short chords for each piece, found by halving the control polygon.
class Chords {
  public:
    explicit Chords(const SplineCurve& curve) {
        constexpr int kSteps = 20000;
        const auto& knots = curve.knots();
        for (int piece = 0; piece < curve.pieceCount(); ++piece) {
            const SplineKnot& a = knots[static_cast<size_t>(piece)];
            const SplineKnot& b = knots[static_cast<size_t>(piece + 1) % knots.size()];
            for (int i = 0; i <= kSteps; ++i)
                add({a.point, a.out, b.in, b.point}, static_cast<long double>(i) / kSteps);
        }
    }

    double length() const { return static_cast<double>(lengths_.back()); }
    /// Distance of `p` from the place at this part of the length.
    double distance(const Point3& p, double part) const {
        const long double wanted = part * lengths_.back();
        const auto found = std::lower_bound(lengths_.begin() + 1, lengths_.end() - 1, wanted);
        const auto at = static_cast<size_t>(found - lengths_.begin());
        const long double step = lengths_[at] - lengths_[at - 1];
        const long double along = step > 0 ? (wanted - lengths_[at - 1]) / step : 0;
        Place q = points_[at - 1];
        for (size_t k = 0; k < 3; ++k)
            q[k] += along * (points_[at][k] - q[k]);
        return static_cast<double>(std::hypot(p.x - q[0], p.y - q[1], p.z - q[2]));
    }

  private:
    using Place = std::array<long double, 3>;

    void add(const Point3 (&corners)[4], long double u) {
        Place p[4];
        for (int i = 0; i < 4; ++i)
            p[i] = {corners[i].x, corners[i].y, corners[i].z};
        for (int left = 3; left > 0; --left)
            for (int i = 0; i < left; ++i)
                for (size_t k = 0; k < 3; ++k)
                    p[i][k] += u * (p[i + 1][k] - p[i][k]);
        const Place& q = points_.empty() ? p[0] : points_.back();
        lengths_.push_back((lengths_.empty() ? 0 : lengths_.back()) +
                           std::hypot(p[0][0] - q[0], p[0][1] - q[1], p[0][2] - q[2]));
        points_.push_back(p[0]);
    }

    std::vector<Place> points_;
    std::vector<long double> lengths_;
};

SplineShape* shapeOf(std::vector<SplineCurve> curves) {
    auto* const shape = new SplineShape;
    shape->setCurves(std::move(curves));
    return shape;
}

}  // namespace

TEST_F(ObjectsTest, CurveLengthsAgreeWithChords) {
    std::mt19937 random(7);
    std::uniform_real_distribution<float> coordinate(-50, 50);
    const auto point = [&] { return Point3(coordinate(random), coordinate(random), coordinate(random)); };
    std::vector<SplineCurve> curves{
        SplineCurve::polyline(kSquare, true),
        SplineCurve({{{0, 0, 0}, {}, {10, 0, 0}}, {{0, 0, 0}, {0, 10, 0}, {}}}, false),    // a drop
        SplineCurve({{{0, 0, 0}, {}, {10, 10, 0}}, {{10, 0, 0}, {0, 10, 0}, {}}}, false),  // a cusp
        SplineCurve({{{0, 0, 0}, {}, {20, 0, 0}}, {{10, 0, 0}, {-10, 0, 0}, {}}}, false),  // there and back
        SplineCurve({{{5, 5, 5}, {0, 0, 20}, {9, 3, 1}}}, true)};                          // one knot
    for (int i = 0; i < 10; ++i) {
        std::vector<SplineKnot> knots;
        for (int k = 0; k < 1 + i % 4; ++k)
            knots.push_back({point(), point(), point()});
        knots.push_back({point(), point(), point()});
        curves.emplace_back(knots, i % 2 == 0);
    }
    SplineShape* const shape = shapeOf(curves);
    for (int i = 0; i < shape->NumberOfCurves(); ++i) {
        const Chords judge(curves[static_cast<size_t>(i)]);
        EXPECT_NEAR(shape->LengthOfCurve(0, i), judge.length(), 1e-6 * judge.length()) << i;
        for (int part = 0; part <= 16; ++part) {
            const Point3 place = shape->InterpCurve3D(0, i, part / 16.0f, PARAM_NORMALIZED);
            EXPECT_LT(judge.distance(place, part / 16.0), 1e-6 * judge.length()) << i << " at " << part;
        }
    }
    shape->MaybeAutoDelete();
}

TEST_F(ObjectsTest, CurveParameters) {
    const float nan = std::nanf("");
    const Polygon same(3, Point3(1, 2, 3));
    SplineShape* const shape =
        shapeOf({SplineCurve::polyline({{0, 0, 0}, {1, 0, 0}, {1, 0, 9}}, false),
                 SplineCurve::polyline(kSquare, true), SplineCurve::polyline(same, true),
                 SplineCurve::polyline({{4, 5, 6}}, false), SplineCurve({}, false)});
    const struct {
        int curve, type;
        float parameter;
        Point3 point, tangent;
    } rows[] = {
        {0, PARAM_SIMPLE, 0.5f, {1, 0, 0}, {0, 0, 1}},
        {0, PARAM_NORMALIZED, 0.5f, {1, 0, 4}, {0, 0, 1}},
        {0, PARAM_NORMALIZED, 0.05f, {0.5, 0.0, 0.0}, {1, 0, 0}},
        {0, PARAM_SIMPLE, -3, {0, 0, 0}, {1, 0, 0}},
        {0, PARAM_NORMALIZED, 7, {1, 0, 9}, {0, 0, 1}},
        {0, PARAM_NORMALIZED, nan, {0, 0, 0}, {1, 0, 0}},
        {1, PARAM_NORMALIZED, 0.875f, {0, 0, 5}, {0, 0, -1}},
        {1, PARAM_SIMPLE, 1, {0, 0, 0}, {0, 0, -1}},
        {2, PARAM_NORMALIZED, 0.5f, {1, 2, 3}, {0, 0, 0}},
        {3, PARAM_NORMALIZED, 0.5f, {4, 5, 6}, {0, 0, 0}},
        {3, PARAM_SIMPLE, 1, {4, 5, 6}, {0, 0, 0}},
        {4, PARAM_SIMPLE, 1, {0, 0, 0}, {0, 0, 0}},
        {5, PARAM_NORMALIZED, 0.5f, {0, 0, 0}, {0, 0, 0}},
        {-1, PARAM_SIMPLE, 0.5f, {0, 0, 0}, {0, 0, 0}},
    };
    for (const auto& row : rows) {
        const Point3 point = shape->InterpCurve3D(0, row.curve, row.parameter, row.type);
        const Point3 tangent = shape->TangentCurve3D(0, row.curve, row.parameter, row.type);
        EXPECT_TRUE(point.Equals(row.point, 1e-5f)) << row.curve << " at " << row.parameter;
        EXPECT_TRUE(tangent.Equals(row.tangent, 1e-5f)) << row.curve << " at " << row.parameter;
    }
    const int pieces[] = {2, 4, 3, 0, 0, 0};
    const float lengths[] = {10, 40, 0, 0, 0, 0};
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(shape->NumberOfPieces(0, i), pieces[i]);
        EXPECT_FLOAT_EQ(shape->LengthOfCurve(0, i), lengths[i]);
        EXPECT_EQ(shape->CurveClosed(0, i), i == 1 || i == 2 ? TRUE : FALSE);
    }
    shape->MaybeAutoDelete();
}

TEST_F(ObjectsTest, ShapeSurvivesCloneUndoAndFile) {
    auto* const shape = create<SplineShape>(SHAPE_CLASS_ID, SPLINESHAPE_CLASS_ID);
    ASSERT_NE(shape, nullptr);
    EXPECT_EQ(shape->NumberOfCurves(), 0);
    INode* const node = nodeOf(shape, "shape");
    hold([&] {
        shape->setCurves({SplineCurve::polyline(kSquare, true), SplineCurve::polyline(kSquare, false)});
    });
    EXPECT_TRUE(host.undo());
    EXPECT_EQ(shape->NumberOfCurves(), 0);
    EXPECT_TRUE(host.redo());

    cloneOf<SplineShape>(node)->setCurves({});
    EXPECT_EQ(shape->NumberOfCurves(), 2);

    expectDamageRefused(chunksOf(*shape), 8, [] { return shapeOf({SplineCurve::polyline(kSquare, true)}); });
    reopen();
    auto* const opened = static_cast<ShapeObject*>(ip->GetINodeByName("shape")->GetObjectRef());
    ASSERT_EQ(opened->NumberOfCurves(), 2);
    EXPECT_EQ(opened->LengthOfCurve(0, 0), 40);
    EXPECT_EQ(opened->LengthOfCurve(0, 1), 30);
    EXPECT_EQ(opened->InterpCurve3D(0, 1, 1), Point3(0, 0, 10));
}

TEST_F(ObjectsTest, ClosedCurvesBecomeMeshes) {
    SplineShape* const shape = shapeOf({SplineCurve::polyline(kSquare, false)});
    nodeOf(shape);
    EXPECT_FALSE(shape->CanConvertToType(triObjectClassID));
    EXPECT_EQ(shape->ConvertToType(0, triObjectClassID), nullptr);

    const Polygon raised{{20, 0, 0}, {20, 0, 5}, {20, 5, 5}};
    shape->setCurves({SplineCurve::polyline(kSquare, true), SplineCurve::polyline(kSquare, false),
                      SplineCurve::polyline(raised, true)});
    Object* const converted = shape->ConvertToType(0, triObjectClassID);
    ASSERT_NE(converted, nullptr);
    const Mesh& mesh = static_cast<TriObject*>(converted)->mesh;
    float area = 0;
    for (int i = 0; i < mesh.numFaces; ++i) {
        const DWORD* const v = mesh.faces[i].v;
        area += ((mesh.verts[v[1]] - mesh.verts[v[0]]) ^ (mesh.verts[v[2]] - mesh.verts[v[0]])).Length() / 2;
    }
    EXPECT_EQ(mesh.numVerts, 7);
    EXPECT_FLOAT_EQ(area, 112.5f);
    converted->MaybeAutoDelete();
}

TEST_F(ObjectsTest, ShapeIsDrawnAndPickedAlongItsCurves) {
    INode* const node = nodeOf(shapeOf({SplineCurve::polyline(kSquare, true)}));
    node->SetWireColor(0x000000ff);
    Object* const shape = node->GetObjectRef();
    ViewRig rig(Box3(Point3(0, 0, 0), Point3(10, 0, 10)));
    shape->Display(0, node, &rig.view(), 0);
    const Point3 on(0, 0, 5), off(5, 0, 5);
    EXPECT_EQ(rig.colorAt(on), "r");
    EXPECT_EQ(rig.colorAt(off), "black");
    IPoint2 onPixel = rig.pixelOf(on), offPixel = rig.pixelOf(off);
    EXPECT_TRUE(shape->HitTest(0, node, HITTYPE_POINT, 1, 0, &onPixel, &rig.view()));
    EXPECT_FALSE(shape->HitTest(0, node, HITTYPE_POINT, 1, 0, &offPixel, &rig.view()));
    IPoint2 part[2] = {rig.pixelOf(Point3(-1, 0, 11)), rig.pixelOf(Point3(5, 0, -1))};
    EXPECT_TRUE(shape->HitTest(0, node, HITTYPE_BOX, 1, 0, part, &rig.view()));
    EXPECT_FALSE(shape->HitTest(0, node, HITTYPE_BOX, 0, 0, part, &rig.view()));
    part[1] = rig.pixelOf(Point3(11, 0, -1));
    EXPECT_TRUE(shape->HitTest(0, node, HITTYPE_BOX, 0, 0, part, &rig.view()));
}

}  // namespace maxhost::test
