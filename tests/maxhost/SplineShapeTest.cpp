#include <algorithm>
#include <cmath>

#include "maxhost/src/objects/SplineShape.h"
#include "tests/maxhost/ObjectsFixture.h"
#include "tests/maxhost/ViewRig.h"

namespace maxhost::test {

namespace {

using Polygon = std::vector<Point3>;

const Polygon kSquare{{0, 0, 0}, {10, 0, 0}, {10, 0, 10}, {0, 0, 10}};

SplineShape* shapeOf(std::vector<SplineCurve> curves) {
    auto* const shape = new SplineShape;
    shape->setCurves(std::move(curves));
    return shape;
}

}  // namespace

double distance(const Point3& a, const Point3& b) {
    return std::hypot(double{a.x} - b.x, double{a.y} - b.y, double{a.z} - b.z);
}

/// Against the sum of many chords, up to the middle of the length and over all of it.
TEST_F(ObjectsTest, CurveLengthsAgreeWithChords) {
    constexpr int kSteps = 4000;
    SplineShape* const shape = shapeOf(
        {SplineCurve::polyline(kSquare, true),
         SplineCurve({{{0, 0, 0}, {}, {10, 0, 0}}, {{0, 0, 0}, {0, 10, 0}, {}}}, false),    // a drop
         SplineCurve({{{0, 0, 0}, {}, {10, 10, 0}}, {{10, 0, 0}, {0, 10, 0}, {}}}, false),  // a cusp
         SplineCurve({{{0, 0, 0}, {}, {20, 0, 0}}, {{10, 0, 0}, {-10, 0, 0}, {}}}, false),  // there and back
         SplineCurve({{{5, 5, 5}, {0, 0, 20}, {9, 3, 1}}}, true),                           // one knot
         SplineCurve({{{0, 0, 0}, {}, {3, 9, -4}}, {{8, 1, 7}, {2, 2, 2}, {30, 0, 1}}, {{9, 9, 9}, {}, {}}},
                     false)});
    for (int i = 0; i < shape->NumberOfCurves(); ++i) {
        const double length = shape->LengthOfCurve(0, i);
        const Point3 middle = shape->InterpCurve3D(0, i, 0.5f, PARAM_NORMALIZED);
        double sum = 0, nearest = length;
        Point3 last = shape->InterpCurve3D(0, i, 0);
        for (int step = 1; step <= kSteps; ++step) {
            const Point3 next = shape->InterpCurve3D(0, i, static_cast<float>(step) / kSteps);
            sum += distance(last, next);
            last = next;
            if (std::abs(sum - length / 2) < length / 1000)
                nearest = std::min(nearest, distance(next, middle));
        }
        EXPECT_NEAR(length, sum, 1e-4 * length) << i;
        EXPECT_LT(nearest, 1e-3 * length) << i;
    }
    shape->MaybeAutoDelete();
}

TEST_F(ObjectsTest, CurveParameters) {
    const float nan = std::nanf("");
    const Polygon same(3, Point3(1, 2, 3));
    SplineShape* const shape =
        shapeOf({SplineCurve::polyline({{0, 0, 0}, {1, 0, 0}, {1, 0, 9}}, false),
                 SplineCurve::polyline(kSquare, true), SplineCurve::polyline(same, true),
                 SplineCurve::polyline({{4, 5, 6}}, false), SplineCurve({}, false),
                 SplineCurve({{{0, 0, 0}, {}, {0, 8, 0}}, {{8, 0, 0}, {8, 8, 8}, {}}}, false)});
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
        {5, PARAM_SIMPLE, 0.5f, {4, 6, 3}, {0.894427f, 0.0f, 0.447214f}},
        {6, PARAM_NORMALIZED, 0.5f, {0, 0, 0}, {0, 0, 0}},
        {-1, PARAM_SIMPLE, 0.5f, {0, 0, 0}, {0, 0, 0}},
    };
    for (const auto& row : rows) {
        const Point3 point = shape->InterpCurve3D(0, row.curve, row.parameter, row.type);
        const Point3 tangent = shape->TangentCurve3D(0, row.curve, row.parameter, row.type);
        EXPECT_TRUE(point.Equals(row.point, 1e-5f)) << row.curve << " at " << row.parameter;
        EXPECT_TRUE(tangent.Equals(row.tangent, 1e-5f)) << row.curve << " at " << row.parameter;
    }
    const int pieces[] = {2, 4, 3, 0, 0};
    const float lengths[] = {10, 40, 0, 0, 0};
    for (int i = 0; i < 5; ++i) {
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

}  // namespace maxhost::test
