#include <map>
#include <utility>

#include "tests/maxhost/ObjectsFixture.h"
#include "tests/maxhost/ViewRig.h"

namespace maxhost::test {

namespace {

/// A mesh with everything that a file must keep, also indices that name nothing.
void fill(Mesh& mesh) {
    mesh.setNumVerts(5);
    for (int i = 0; i < 5; ++i)
        mesh.setVert(i, Point3(i * 1.5, i * i * -0.25, 1.0 / (i + 3)));
    mesh.setNumFaces(3);
    for (int i = 0; i < 3; ++i) {
        mesh.faces[i].setVerts(i, i + 1, i + 2);
        mesh.faces[i].setEdgeVisFlags(i & 1, 1, 0);
        mesh.faces[i].setSmGroup(1u << i);
        mesh.faces[i].setMatID(static_cast<MtlID>(7 * i));
    }
    mesh.faces[2].setVerts(0, -1, 1000000);
    mesh.setNumTVerts(2);
    mesh.setTVert(0, 0.25f, 0.5f, 0);
    mesh.setTVert(1, 1, 0, 0);
    mesh.setNumTVFaces(3);
    mesh.tvFace[1].setTVerts(1, 0, 1);
}

void expectEqual(const Mesh& a, const Mesh& b) {
    ASSERT_EQ(a.numVerts, b.numVerts);
    ASSERT_EQ(a.numFaces, b.numFaces);
    ASSERT_EQ(a.numTVerts, b.numTVerts);
    ASSERT_EQ(a.getNumTVFaces(), b.getNumTVFaces());
    for (int i = 0; i < a.numVerts; ++i)
        EXPECT_EQ(a.verts[i], b.verts[i]);
    for (int i = 0; i < a.numFaces; ++i)
        EXPECT_EQ(std::memcmp(&a.faces[i], &b.faces[i], sizeof(Face)), 0) << i;
    for (int i = 0; i < a.numTVerts; ++i)
        EXPECT_EQ(a.tVerts[i], b.tVerts[i]);
    for (int i = 0; i < a.getNumTVFaces(); ++i)
        EXPECT_EQ(std::memcmp(&a.tvFace[i], &b.tvFace[i], sizeof(TVFace)), 0) << i;
}

/// Volume inside a closed mesh whose faces look outwards; fails for any other mesh.
double volumeOf(const Mesh& mesh) {
    std::map<std::pair<DWORD, DWORD>, int> edges;
    double volume = 0;
    for (int i = 0; i < mesh.numFaces; ++i) {
        const DWORD* const v = mesh.faces[i].v;
        for (int k = 0; k < 3; ++k)
            ++edges[{v[k], v[(k + 1) % 3]}];
        volume += double{mesh.verts[v[0]] % (mesh.verts[v[1]] ^ mesh.verts[v[2]])} / 6;
    }
    for (const auto& [edge, count] : edges) {
        EXPECT_EQ(count, 1);
        EXPECT_EQ(edges.count({edge.second, edge.first}), 1u) << "open edge";
    }
    return volume;
}

/// The mesh of the object at `t`; checks that it is made for the caller alone.
Mesh converted(Object* object, TimeValue t) {
    EXPECT_TRUE(object->CanConvertToType(triObjectClassID));
    Object* const result = object->ConvertToType(t, triObjectClassID);
    EXPECT_NE(result, object);
    EXPECT_EQ(result->ClassID(), triObjectClassID);
    EXPECT_FALSE(result->HasDependents());
    const Mesh mesh = static_cast<TriObject*>(result)->GetMesh();
    result->MaybeAutoDelete();
    return mesh;
}

}  // namespace

TEST_F(ObjectsTest, MeshSurvivesCloneAndFile) {
    TriObject* const tri = CreateNewTriObject();
    fill(tri->mesh);
    INode* const node = nodeOf(tri, "mesh");
    EXPECT_EQ(node->EvalWorldState(0).obj->ConvertToType(0, triObjectClassID), tri);
    Mesh& cloned = cloneOf<TriObject>(node)->mesh;
    expectEqual(cloned, tri->mesh);
    cloned.setVert(0, Point3(9, 9, 9));
    EXPECT_NE(tri->mesh.verts[0], Point3(9, 9, 9));

    reopen();
    Mesh expected;
    fill(expected);
    expectEqual(static_cast<TriObject*>(ip->GetINodeByName("mesh")->GetObjectRef())->mesh, expected);
}

TEST_F(ObjectsTest, DamagedMeshIsRefused) {
    TriObject* const tri = CreateNewTriObject();
    fill(tri->mesh);
    expectDamageRefused(chunksOf(*tri), 20, [] {
        TriObject* const other = CreateNewTriObject();
        other->mesh.setNumVerts(2);
        return other;
    });
    qvo::zmx::test::ChunkSaver full;
    full.failAfter = 2;
    EXPECT_EQ(tri->Save(&full), IO_ERROR);

    tri->mesh.setNumTVFaces(2);
    qvo::zmx::test::ChunkLoader fewer(chunksOf(*tri));
    EXPECT_EQ(tri->Load(&fewer), IO_ERROR) << "fewer texture faces than faces";
    tri->MaybeAutoDelete();
}

TEST_F(ObjectsTest, BoxDeformsWithItsParameters) {
    Object* const box = create(GEOMOBJECT_CLASS_ID, BOXOBJ_CLASS_ID);
    INode* const node = nodeOf(box);
    EXPECT_STREQ(node->GetName(), "Box01");
    ASSERT_EQ(box->NumSubs(), 1);
    EXPECT_EQ(box->SubAnimName(0), "Parameters");
    const char* const names[] = {"Length", "Width", "Height"};
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(box->SubAnim(0)->SubAnimName(i), names[i]);
    setKey(parameter(box, 0), 0, 4);
    setKey(parameter(box, 1), 0, 2);
    setKey(parameter(box, 2), 0, 10);
    setKey(parameter(box, 2), 1600, -30);

    EXPECT_EQ(node->EvalWorldState(800).obj, box);
    EXPECT_EQ(box->ObjectValidity(800), Interval(800, 800));
    EXPECT_EQ(box->ObjectValidity(1700), Interval(1600, TIME_PosInfinity));
    const struct {
        TimeValue t;
        float low, high;
    } rows[] = {{0, 0, 10}, {800, -10, 0}, {1600, -30, 0}};
    for (const auto& row : rows) {
        Mesh mesh = converted(box, row.t);
        const Box3 bounds = mesh.getBoundingBox();
        EXPECT_EQ(bounds.pmin, Point3(-1.0f, -2.0f, row.low)) << row.t;
        EXPECT_EQ(bounds.pmax, Point3(1.0f, 2.0f, row.high)) << row.t;
        EXPECT_NEAR(volumeOf(mesh), 8 * (row.high - row.low), 1e-3) << row.t;
    }
    const Mesh ball = converted(nodeOf(create(GEOMOBJECT_CLASS_ID, SPHERE_CLASS_ID))->GetObjectRef(), 0);
    EXPECT_NEAR(volumeOf(ball), 4.0 / 3 * 3.14159265 * 25 * 25 * 25, 0.02 * 65450);
}

TEST_F(ObjectsTest, PrimitivesSurviveCloneAndFile) {
    INode* const node = nodeOf(create(GEOMOBJECT_CLASS_ID, SPHERE_CLASS_ID), "ball");
    setKey(parameter(node->GetObjectRef(), 0), 0, 3);
    setKey(parameter(node->GetObjectRef(), 0), 160, 7);
    setKey(parameter(cloneOf(node), 0), 160, 70);
    EXPECT_EQ(valueOf(parameter(node->GetObjectRef(), 0), 160), 7);

    reopen();
    Object* const ball = ip->GetINodeByName("ball")->GetObjectRef();
    EXPECT_EQ(ball->ClassID(), Class_ID(SPHERE_CLASS_ID, 0));
    EXPECT_EQ(converted(ball, 80).getBoundingBox().pmax.z, 5);
}

TEST_F(ObjectsTest, GeometryIsDrawnPickedAndMeasuredAtItsNode) {
    INode* const node = nodeOf(create(GEOMOBJECT_CLASS_ID, BOXOBJ_CLASS_ID));
    Matrix3 tm = TransMatrix(Point3(100, 0, 0));
    node->SetNodeTM(0, tm);
    node->SetWireColor(0x0000ff00);
    Object* const box = node->EvalWorldState(0).obj;
    ViewRig rig(Box3(Point3(50, -20, -20), Point3(150, 20, 40)));
    Box3 local, world;
    box->GetLocalBoundBox(0, node, &rig.view(), local);
    box->GetWorldBoundBox(0, node, &rig.view(), world);
    EXPECT_EQ(local.Center(), Point3(0.0f, 0.0f, 12.5f));
    EXPECT_EQ(world.Center(), Point3(100.0f, 0.0f, 12.5f));

    box->Display(0, node, &rig.view(), 0);
    const Point3 inside(100, -12, 12), outside(70, 0, 12);
    EXPECT_EQ(rig.colorAt(inside), "g");
    EXPECT_EQ(rig.colorAt(outside), "black");
    for (const bool hit : {true, false}) {
        IPoint2 pixel = rig.pixelOf(hit ? inside : outside);
        EXPECT_EQ(box->HitTest(0, node, HITTYPE_POINT, 1, 0, &pixel, &rig.view()) != 0, hit);
    }
    Ray ray;
    ray.p = Point3(0, 0, 100);
    ray.dir = Point3(0, 0, -1);
    float at = 0;
    Point3 norm;
    EXPECT_TRUE(box->IntersectRay(0, ray, at, norm));
    EXPECT_EQ(at, 75);
}

}  // namespace maxhost::test
