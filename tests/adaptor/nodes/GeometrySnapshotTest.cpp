#include <array>
#include <cmath>
#include <memory>
#include <type_traits>

#include "adaptor/max/nodes/CMAXSnapshot_Helper.h"
#include "adaptor/max/nodes/CustomHelperObject.h"
#include "adaptor/max/plugin/OptionStore.h"
#include "maxhost/src/objects/SplineShape.h"
#include "tests/support/AdaptorFixture.h"

namespace qvo::util {

static bool operator==(const Point3d& a, const Point3d& b) {
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

}  // namespace qvo::util

namespace qvo::zmx::adaptor::max {
namespace {

using core::CoreNode;
using util::CMesh;
using util::Point3d;

/// A square of two triangles with texture coordinates.
CMesh square() {
    CMesh mesh;
    mesh.vertices = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}};
    mesh.faces = {0, 1, 2, 0, 2, 3};
    mesh.textureVertices = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}};
    mesh.textureFaces = {0, 1, 2, 0, 2, 3};
    return mesh;
}

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

class Geometry : public AdaptorFixture {
  protected:
    CMAXNode* makeMesh(const CMesh& mesh, CMAXNode* parent = nullptr) {
        return static_cast<CMAXNode*>(adaptor().createMeshNode(&owner, "mesh", parent, mesh, &listener));
    }

    /// A registered wrapper of a new node with a host object of this class.
    CMAXNode* wrapObject(SClass_ID superClass, ULONG id) {
        auto* const object = static_cast<Object*>(ip().CreateInstance(superClass, Class_ID(id, 0)));
        return new CMAXNode(&owner, "object", nullptr, ip().CreateObjectNode(object));  // the registry's
    }

    CMesh meshAt(CMAXNode* node, double seconds) {
        CoreNode::Snapshot_Mesh* const snapshot = node->acquireMeshSnapshot(seconds);
        const CMesh mesh = snapshot->getMesh();
        node->releaseMeshSnapshot(snapshot);
        return mesh;
    }

    void useDynamicMeshes(bool on) {
        UtilityManager::instance().options().setValue(kDynamicMeshesOption, on);
    }

    /// Grows from one second to the next.
    CMAXNode* makeGrowingBox() {
        CMAXNode* const box = wrapObject(GEOMOBJECT_CLASS_ID, BOXOBJ_CLASS_ID);
        Animatable* const parameters = box->hostNode()->GetObjectRef()->SubAnim(0);
        EXPECT_TRUE(parameters && box->hostNode()->GetObjectRef()->SubAnimName(0) == "Parameters");
        auto* const length = static_cast<Control*>(parameters->SubAnim(0));
        AnimateOn();
        for (float size : {100.0f, 200.0f})
            length->SetValue(static_cast<TimeValue>((size - 100) * 48), &size);
        AnimateOff();
        return box;
    }

    static double extent(const CMesh& mesh) {
        double largest = 0;
        for (const Point3d& vertex : mesh.vertices)
            largest = std::max({largest, std::fabs(vertex.x), std::fabs(vertex.y), std::fabs(vertex.z)});
        return largest;
    }
};

struct MeshCase {
    const char* name;
    CMesh written;
    std::vector<int> textureFaces;  ///< as they are read back
    std::size_t textureVertices;
};

std::vector<MeshCase> meshCases() {
    std::vector<MeshCase> rows;
    rows.push_back({"Textured", square(), {0, 1, 2, 0, 2, 3}, 4});
    rows.push_back({"Untextured", square(), {0, 0, 0, 0, 0, 0}, 1});
    rows.back().written.textureVertices.clear();
    rows.back().written.textureFaces.clear();
    // The vertex indices decide, not the texture indices: the second face reaches past the texture vertices.
    rows.push_back({"FewerTextureVertices", square(), {2, 1, 0, 0, 0, 0}, 3});
    rows.back().written.textureVertices.pop_back();
    rows.back().written.textureFaces = {2, 1, 0, 0, 1, 2};
    rows.push_back({"ShortTextureFaces", square(), {0, 1, 2, 0, 0, 0}, 4});
    rows.back().written.textureFaces.resize(4);
    rows.push_back({"TrailingIndices", square(), {0, 1, 2, 0, 2, 3}, 4});
    rows.back().written.faces.push_back(1);
    rows.push_back({"Empty", CMesh(), {}, 1});
    return rows;
}

TEST_F(Geometry, MeshesComeBackAsTheyWereWritten) {
    for (const MeshCase& row : meshCases()) {
        CMAXNode* const node = makeMesh(row.written);
        ASSERT_NE(node, nullptr) << row.name;
        const CMesh read = meshAt(node, 0);
        EXPECT_TRUE(read.vertices == row.written.vertices) << row.name;
        std::vector<int> faces = row.written.faces;
        faces.resize(faces.size() / 3 * 3);
        EXPECT_EQ(read.faces, faces) << row.name;
        EXPECT_EQ(read.textureFaces, row.textureFaces) << row.name;
        EXPECT_EQ(read.textureVertices.size(), row.textureVertices) << row.name;
        Mesh& written = static_cast<TriObject*>(node->hostNode()->GetObjectRef())->GetMesh();
        for (int i = 0; i < written.getNumFaces(); ++i)
            EXPECT_EQ(written.faces[i].flags & EDGE_ALL, EDGE_A | EDGE_B) << row.name;
    }
}

TEST_F(Geometry, MeshNodesAreMadeLoggedAndUndone) {
    CMAXNode* const parent = makeHelper("parent");
    makeMesh(square());
    EXPECT_NE(log().find("creating helper: mesh"), std::string::npos);
    EXPECT_NE(log().find("parent: (NULL)"), std::string::npos);
    adaptor().beginUndoGroup("mesh");
    CMAXNode* const child = makeMesh(square(), parent);
    adaptor().endUndoGroup();
    EXPECT_NE(log().find("parent: tool_parent"), std::string::npos);
    EXPECT_EQ(child->hostNode()->GetWireColor(), 255u);
    EXPECT_EQ(child->getName(), "tool_mesh");
    host.undo();
    EXPECT_EQ(parent->numberOfChildren(), 0);
    host.redo();
    EXPECT_EQ(meshAt(child, 0).faces, square().faces);
}

TEST_F(Geometry, WithoutDynamicMeshesOneConversionServesABatch) {
    CMAXNode* const box = makeGrowingBox();
    adaptor().beginKeyBatch();  // a nested batch has a conversion of its own, too
    for (int batch = 0; batch < 2; ++batch) {
        adaptor().beginKeyBatch();
        const double size = extent(meshAt(box, batch));
        EXPECT_DOUBLE_EQ(extent(meshAt(box, 1 - batch)), size) << "the first conversion is shared";
        EXPECT_DOUBLE_EQ(size, batch == 0 ? 50 : 100);
        adaptor().endKeyBatch();
    }
    adaptor().endKeyBatch();
    EXPECT_NE(extent(meshAt(box, 0)), 0);
}

TEST_F(Geometry, DynamicMeshesFollowTheDeformation) {
    CMAXNode* const box = makeGrowingBox();
    useDynamicMeshes(true);
    adaptor().beginKeyBatch();
    const double small = extent(meshAt(box, 0));
    EXPECT_NEAR(extent(meshAt(box, 1)), 2 * small, 1e-4);
    CoreNode::Snapshot_Mesh* const owning = box->acquireMeshSnapshot(0);
    useDynamicMeshes(false);
    box->releaseMeshSnapshot(owning);
    EXPECT_NEAR(extent(meshAt(box, 1)), 2 * small, 1e-4) << "its own object is freed, then a shared one made";
    adaptor().endKeyBatch();
}

TEST_F(Geometry, SnapshotsLoseConvertedObjectsThatAreGone) {
    enum class End { batch, undo, reset, detach, deletion };
    for (const End end : {End::batch, End::undo, End::reset, End::detach, End::deletion}) {
        adaptor().beginUndoGroup("edit");
        CMAXNode* const box = makeGrowingBox();
        adaptor().beginKeyBatch();
        CoreNode::Snapshot_Mesh* const snapshot = box->acquireMeshSnapshot(0);
        ASSERT_FALSE(snapshot->getMesh().vertices.empty());
        switch (end) {
            case End::batch:
                adaptor().endKeyBatch();
                break;
            case End::undo:
                adaptor().endKeyBatch();
                adaptor().endUndoGroup();
                host.undo();
                break;
            case End::reset:
                adaptor().sceneClosed();
                break;
            case End::detach:
                adaptor().letGoOfCore();
                break;
            case End::deletion:
                box->deleteNode(true);
                break;
        }
        CMesh mesh;
        util::ReturnInto<CMesh> sink(mesh);
        EXPECT_FALSE(snapshot->getMesh(sink));
        snapshot->setMesh(square());
        const double origin[3] = {0, 0, 100}, down[3] = {0, 0, -1};
        EXPECT_FALSE(snapshot->intersectRay(origin, down, nullptr, nullptr));
        if (end == End::detach)
            delete snapshot;  // its wrapper is gone
        else
            box->releaseMeshSnapshot(snapshot);
        adaptor().endKeyBatch();
        adaptor().endUndoGroup();
        host.reset();
    }
}

TEST_F(Geometry, SnapshotsLoseAMeshObjectThatIsReplaced) {
    CMAXNode* const node = makeMesh(square());
    CoreNode::Snapshot_Mesh* const snapshot = node->acquireMeshSnapshot(0);
    node->hostNode()->SetObjectRef(CreateNewTriObject());
    EXPECT_TRUE(snapshot->getMesh().vertices.empty());
    snapshot->setMesh(square());
    node->releaseMeshSnapshot(snapshot);
    EXPECT_TRUE(meshAt(node, 0).vertices.empty());
}

TEST_F(Geometry, LentSnapshotsOutliveTheirWrapper) {
    const auto lent = [](CMAXNode* node, auto acquire) {
        auto* const view = new CMAXNode(nullptr, node->hostNode());
        auto* const snapshot = acquire(*view);
        view->destroy();
        return std::unique_ptr<std::remove_pointer_t<decltype(snapshot)>>(snapshot);
    };
    CMAXNode* const box = wrapObject(GEOMOBJECT_CLASS_ID, BOXOBJ_CLASS_ID);
    const auto look = lent(box, [](CMAXNode& view) { return view.acquireHelperSnapshot(); });
    look->setColor(0, 0, 1);
    EXPECT_EQ(box->hostNode()->GetWireColor(), 0x00FF0000u);
    const auto mesh = lent(box, [](CMAXNode& view) { return view.acquireMeshSnapshot(0); });
    EXPECT_EQ(mesh->getMesh().vertices.size(), 8u);
    CMAXNode* const camera = wrapObject(CAMERA_CLASS_ID, SIMPLE_CAM_CLASS_ID);
    const auto lens = lent(camera, [](CMAXNode& view) { return view.acquireLensSnapshot(0); });
    lens->setTargetDistance(12);
    EXPECT_EQ(lens->getTargetDistance(), 12);
    CMAXNode* const spline = wrapObject(SHAPE_CLASS_ID, SPLINESHAPE_CLASS_ID);
    auto* const curves = static_cast<maxhost::SplineShape*>(spline->hostNode()->GetObjectRef());
    curves->setCurves({maxhost::SplineCurve::polyline({Point3(0, 0, 0), Point3(1, 0, 0)}, false)});
    const auto shape = lent(spline, [](CMAXNode& view) { return view.acquireShapeSnapshot(0); });
    EXPECT_EQ(shape->numberOfCurves(), 1);
    host.reset();
    EXPECT_EQ(shape->numberOfCurves(), 0);
}

TEST_F(Geometry, RaysHitInObjectSpace) {
    CMAXNode* const node = makeMesh(square());
    CoreNode::Snapshot_Mesh* const snapshot = node->acquireMeshSnapshot(0);
    const double origin[3] = {0.25, 0.5, 4};
    const double down[3] = {0, 0, -2};
    double distance = 0, normal[3] = {};
    EXPECT_TRUE(snapshot->intersectRay(origin, down, &distance, normal));
    EXPECT_NEAR(distance, 2, 1e-6) << "in lengths of the direction";
    EXPECT_NEAR(normal[2], 1, 1e-6);
    const double up[3] = {0, 0, 1};
    EXPECT_FALSE(snapshot->intersectRay(origin, up, nullptr, nullptr));
    EXPECT_FALSE(snapshot->intersectRay(nullptr, up, nullptr, nullptr));
    node->releaseMeshSnapshot(snapshot);
}

TEST_F(Geometry, OnlyTheRightObjectsLendTheirAspects) {
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

TEST_F(Geometry, LensesConvertDegrees) {
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

TEST_F(Geometry, ShapesAreSampledByLength) {
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

TEST_F(Geometry, HelpersTakeShapeColorAndSwitches) {
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

TEST(PackedColor, TruncatesAndWraps) {
    EXPECT_EQ(packedColor(1, 0.5f, 0), 0x00007FFFu);
    EXPECT_EQ(packedColor(2, 0, 0), 510u & 0xFF);
    EXPECT_EQ(packedColor(-1.0f / 255.0f, 0, 0), 255u);
    EXPECT_EQ(packedColor(std::nanf(""), HUGE_VALF, -HUGE_VALF), 0u);
}

}  // namespace
}  // namespace qvo::zmx::adaptor::max
