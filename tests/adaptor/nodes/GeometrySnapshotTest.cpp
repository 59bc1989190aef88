#include <algorithm>
#include <cmath>

#include "adaptor/max/plugin/OptionStore.h"
#include "tests/adaptor/nodes/GeometryFixture.h"

namespace qvo::zmx::adaptor::max {
namespace {

using core::CoreNode;
using util::CMesh;
using util::Point3d;

class Geometry : public GeometryFixture {
  protected:
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

}  // namespace
}  // namespace qvo::zmx::adaptor::max
