#include <array>
#include <cmath>
#include <memory>

#include "adaptor/max/nodes/CMAXSnapshot_Helper.h"
#include "adaptor/max/nodes/CustomHelperObject.h"
#include "maxhost/src/objects/SplineShape.h"
#include "tests/adaptor/nodes/GeometryFixture.h"

namespace qvo::zmx::adaptor::max {
namespace {

using core::CoreNode;
using util::CMesh;

/// A mesh object under a class id of its own, as the host has some.
class OtherMesh final : public TriObject {
  public:
    void DeleteThis() override { delete this; }
    Class_ID ClassID() override { return Class_ID(0x3d5c1a07, 0x62ee49b1); }
    int CanConvertToType(Class_ID type) override { return type == triObjectClassID; }
    Object* ConvertToType(TimeValue, Class_ID type) override {
        return type == triObjectClassID ? this : nullptr;
    }
    ObjectState Eval(TimeValue) override { return ObjectState(this); }
    CreateMouseCallBack* GetCreateMouseCallBack() override { return nullptr; }
    RefResult NotifyRefChanged(Interval, RefTargetHandle, PartID&, RefMessage) override {
        return REF_SUCCEED;
    }
};

using Aspects = GeometryFixture;

TEST_F(Aspects, OnlyTheRightObjectsLendTheirAspects) {
    struct Row {
        SClass_ID superClass;
        ULONG id;
        bool helper, mesh, lens, shape;
    };
    const Row rows[] = {{GEOMOBJECT_CLASS_ID, BOXOBJ_CLASS_ID, true, true, false, false},
                        {CAMERA_CLASS_ID, SIMPLE_CAM_CLASS_ID, false, false, true, false},
                        {SHAPE_CLASS_ID, SPLINESHAPE_CLASS_ID, true, true, false, true},
                        {HELPER_CLASS_ID, POINTHELP_CLASS_ID, true, true, false, false}};
    for (const Row& row : rows) {
        CMAXNode* const node = wrapObject(row.superClass, row.id);
        CoreNode::Snapshot_Helper* const helper = node->acquireHelperSnapshot();
        CoreNode::Snapshot_Mesh* const mesh = node->acquireMeshSnapshot(0);
        CoreNode::Snapshot_Lens* const lens = node->acquireLensSnapshot(0);
        CoreNode::Snapshot_Shape* const shape = node->acquireShapeSnapshot(0);
        EXPECT_EQ(helper != nullptr, row.helper) << row.superClass;
        EXPECT_EQ(mesh != nullptr, row.mesh) << row.superClass;
        EXPECT_EQ(lens != nullptr, row.lens) << row.superClass;
        EXPECT_EQ(shape != nullptr, row.shape) << row.superClass;
        node->releaseHelperSnapshot(helper);
        node->releaseMeshSnapshot(mesh);
        node->releaseLensSnapshot(lens);
        node->releaseShapeSnapshot(shape);
    }
    CMAXNode* const bare = wrapObject(GEOMOBJECT_CLASS_ID, BOXOBJ_CLASS_ID);
    bare->hostNode()->SetObjectRef(nullptr);
    EXPECT_EQ(bare->acquireLensSnapshot(0), nullptr);
    EXPECT_EQ(bare->acquireShapeSnapshot(0), nullptr);
    CoreNode::Snapshot_Helper* const helper = bare->acquireHelperSnapshot();
    ASSERT_NE(helper, nullptr) << "a node without an object still has a colour";
    helper->setMesh(square());
    helper->setColor(0, 0, 1);
    EXPECT_EQ(bare->hostNode()->GetWireColor(), 0x00FF0000u);
    EXPECT_TRUE(meshAt(bare, 0).vertices.empty());
    bare->releaseHelperSnapshot(helper);
}

TEST_F(Aspects, LensesConvertDegrees) {
    CMAXNode* const camera = wrapObject(CAMERA_CLASS_ID, SIMPLE_CAM_CLASS_ID);
    CoreNode::Snapshot_Lens* const lens = camera->acquireLensSnapshot(0.5);
    lens->setFieldOfView(60);
    EXPECT_NEAR(lens->getFieldOfView(), 60, 1e-4);
    for (const int type : {2, 1, 0, 3, -1}) {
        lens->setFieldOfViewType(type);
        EXPECT_EQ(lens->getFieldOfViewType(), type < 0 || type > 2 ? 0 : type);
    }
    lens->setTargetDistance(123.5);
    EXPECT_DOUBLE_EQ(lens->getTargetDistance(), 123.5);
    EXPECT_DOUBLE_EQ(lens->getTime(), 0.5);
    EXPECT_DOUBLE_EQ(lens->getLensTransform().m[2][2], 1);
    camera->releaseLensSnapshot(lens);
}

TEST_F(Aspects, ShapesAreSampledByLength) {
    CMAXNode* const node = wrapObject(SHAPE_CLASS_ID, SPLINESHAPE_CLASS_ID);
    auto* const shape = static_cast<maxhost::SplineShape*>(node->hostNode()->GetObjectRef());
    const auto line = [](const std::vector<Point3>& points) {
        return maxhost::SplineCurve::polyline(points, false);
    };
    shape->setCurves({line({Point3(0.0f, 0.0f, 0.0f), Point3(1.0f, 0.0f, 0.0f), Point3(4.0f, 0.0f, 0.0f)}),
                      line({Point3(2.0f, 2.0f, 2.0f)})});
    CoreNode::Snapshot_Shape* const snapshot = node->acquireShapeSnapshot(0);
    EXPECT_EQ(snapshot->numberOfCurves(), 2);
    EXPECT_NEAR(snapshot->getCurveLength(), 4, 1e-5);
    EXPECT_NEAR(snapshot->getPoint(0.5).x, 2, 1e-5);
    for (const double parameter : {0.0, 0.5, 1.0}) {
        EXPECT_NEAR(snapshot->getTangent(parameter).x, 1, 1e-3) << parameter;
    }
    snapshot->setCurve(10);
    EXPECT_EQ(snapshot->getCurve(), 1);
    EXPECT_DOUBLE_EQ(snapshot->getTangent(0.5).y, 1) << "no extent, no direction";
    node->releaseShapeSnapshot(snapshot);
    EXPECT_EQ(node->acquireShapeSnapshot(0), snapshot);
    EXPECT_EQ(snapshot->getCurve(), 1) << "kept from one acquisition to the next";
    snapshot->setCurve(-3);
    EXPECT_EQ(snapshot->getCurve(), 0);
    snapshot->setCurve(1);
    shape->setCurves({line({Point3(0.0f, 0.0f, 0.0f), Point3(0.0f, 0.0f, 6.0f)})});
    EXPECT_NEAR(snapshot->getCurveLength(), 6, 1e-5) << "the selected curve is gone, the last one stands in";
    EXPECT_NEAR(snapshot->getPoint(0.5).z, 3, 1e-5);
    shape->setCurves({});
    EXPECT_EQ(snapshot->getCurveLength(), 0);
    EXPECT_EQ(snapshot->setCurve(5), 0);
    EXPECT_EQ(snapshot->getCurve(), 0);
    node->releaseShapeSnapshot(snapshot);
}

TEST_F(Aspects, HelpersTakeShapeColorAndSwitches) {
    CMAXNode* const node = makeHelper("a");
    auto* const object = static_cast<CustomHelperObject*>(node->hostNode()->GetObjectRef());
    CoreNode::Snapshot_Helper* const look = node->acquireHelperSnapshot();
    look->setMesh(square());
    EXPECT_TRUE(object->shape().vertices == square().vertices);
    look->setColor(1, 0.5f, 0);
    EXPECT_EQ(node->hostNode()->GetWireColor(), 0x00007FFFu);
    EXPECT_EQ(object->color(), (std::array<float, 3>{1, 0.5f, 0}));
    look->setWireframe(false);
    look->setBackfaceCulling(true);
    EXPECT_FALSE(object->wireframe());
    EXPECT_TRUE(object->backfaceCulling());
    node->releaseHelperSnapshot(look);

    CMAXNode* const point = wrapObject(HELPER_CLASS_ID, POINTHELP_CLASS_ID);
    CoreNode::Snapshot_Helper* const other = point->acquireHelperSnapshot();
    other->setMesh(square());
    EXPECT_NE(log().find("cannot show a shape"), std::string::npos);
    other->setWireframe(true);
    other->setColor(0, 0, 1);
    EXPECT_EQ(point->hostNode()->GetWireColor(), 0x00FF0000u);
    point->releaseHelperSnapshot(other);

    CMAXNode* const box = wrapObject(GEOMOBJECT_CLASS_ID, BOXOBJ_CLASS_ID);
    CMAXNode* const mesh = makeMesh(CMesh());
    auto* const another = new CMAXNode(&owner, "mesh", nullptr, ip().CreateObjectNode(new OtherMesh));
    for (CMAXNode* const target : {box, mesh, another}) {
        CoreNode::Snapshot_Helper* const written = target->acquireHelperSnapshot();
        written->setMesh(square());
        EXPECT_EQ(meshAt(target, 0).faces == square().faces, target != box) << "a box keeps its own shape";
        target->releaseHelperSnapshot(written);
    }
}

TEST_F(Aspects, LentSnapshotsOutliveTheirWrapper) {
    CMAXNode* const spline = wrapObject(SHAPE_CLASS_ID, SPLINESHAPE_CLASS_ID);
    auto* const curves = static_cast<maxhost::SplineShape*>(spline->hostNode()->GetObjectRef());
    curves->setCurves({maxhost::SplineCurve::polyline({Point3(0, 0, 0), Point3(1, 0, 0)}, false)});
    auto* const view = new CMAXNode(nullptr, spline->hostNode());
    const std::unique_ptr<CoreNode::Snapshot_Shape> lent(view->acquireShapeSnapshot(0));
    view->destroy();
    EXPECT_EQ(lent->numberOfCurves(), 1);
    host.reset();
    EXPECT_EQ(lent->numberOfCurves(), 0);
}

TEST(PackedColor, TruncatesAndWraps) {
    EXPECT_EQ(packedColor(1, 0.5f, 0), 0x00007FFFu);
    EXPECT_EQ(packedColor(2, 0, 0), 510u & 0xFF);
    EXPECT_EQ(packedColor(-1.0f / 255.0f, 0, 0), 255u);
    EXPECT_EQ(packedColor(std::nanf(""), HUGE_VALF, -HUGE_VALF), 0u);
}

}  // namespace
}  // namespace qvo::zmx::adaptor::max
