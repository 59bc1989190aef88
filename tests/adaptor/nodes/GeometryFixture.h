#pragma once

#include <string>

#include "tests/support/AdaptorFixture.h"

namespace qvo::util {

inline bool operator==(const Point3d& a, const Point3d& b) {
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

}  // namespace qvo::util

namespace qvo::zmx::adaptor::max {

/// A square of two triangles with texture coordinates.
inline util::CMesh square() {
    util::CMesh mesh;
    mesh.vertices = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}};
    mesh.faces = {0, 1, 2, 0, 2, 3};
    mesh.textureVertices = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}};
    mesh.textureFaces = {0, 1, 2, 0, 2, 3};
    return mesh;
}

/// Nodes with a shape, and their snapshots.
class GeometryFixture : public AdaptorFixture {
  protected:
    CMAXNode* makeMesh(const util::CMesh& mesh, CMAXNode* parent = nullptr) {
        return static_cast<CMAXNode*>(adaptor().createMeshNode(&owner, "mesh", parent, mesh, &listener));
    }

    /// A registered wrapper of a new node with a host object of this class.
    CMAXNode* wrapObject(SClass_ID superClass, ULONG id) {
        auto* const object = static_cast<Object*>(ip().CreateInstance(superClass, Class_ID(id, 0)));
        return new CMAXNode(&owner, "object", nullptr, ip().CreateObjectNode(object));  // the registry's
    }

    static util::CMesh meshAt(CMAXNode* node, double seconds) {
        core::CoreNode::Snapshot_Mesh* const snapshot = node->acquireMeshSnapshot(seconds);
        const util::CMesh mesh = snapshot->getMesh();
        node->releaseMeshSnapshot(snapshot);
        return mesh;
    }
};

}  // namespace qvo::zmx::adaptor::max
