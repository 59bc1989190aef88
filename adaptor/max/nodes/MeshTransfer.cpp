#include "adaptor/max/nodes/MeshTransfer.h"

namespace qvo::zmx::adaptor::max {

using util::CMesh;
using util::Point3d;

namespace {

Point3d widened(const Point3& point) {
    return {point.x, point.y, point.z};
}

void writeVertices(const CMesh& mesh, Mesh& target) {
    const int count = static_cast<int>(mesh.vertices.size());
    target.setNumVerts(count, FALSE, TRUE);
    for (int i = 0; i < count; ++i)
        target.setVert(i, narrowed(mesh.vertices[i]));
}

void writeTextureVertices(const CMesh& mesh, Mesh& target) {
    if (mesh.textureVertices.empty()) {
        target.setNumTVerts(1, FALSE);
        target.setTVert(0, UVVert(0, 0, 0));
        return;
    }
    const int count = static_cast<int>(mesh.textureVertices.size());
    target.setNumTVerts(count, FALSE);
    for (int i = 0; i < count; ++i)
        target.setTVert(i, narrowed(mesh.textureVertices[i]));
}

/// Whether texture face `i` is taken over. Intended: tests the vertex indices, not the texture indices that
/// are copied, so a mesh with fewer texture vertices than vertices gets zero texture faces at the corners
/// beyond.
bool hasTextureFace(const CMesh& mesh, std::size_t i) {
    const auto within = [&](int index) {
        return index >= 0 && static_cast<std::size_t>(index) < mesh.textureVertices.size();
    };
    return 3 * i + 2 < mesh.textureFaces.size() && within(mesh.faces[3 * i]) &&
           within(mesh.faces[3 * i + 1]) && within(mesh.faces[3 * i + 2]);
}

void writeFace(const CMesh& mesh, int i, Face& face) {
    const std::size_t corner = 3 * static_cast<std::size_t>(i);
    face.setVerts(mesh.faces[corner], mesh.faces[corner + 1], mesh.faces[corner + 2]);
    face.setEdgeVisFlags(1, 1, 0);  // the closing edge of each triangle stays invisible
}

void writeTextureFace(const CMesh& mesh, int i, TVFace& face) {
    const std::size_t corner = 3 * static_cast<std::size_t>(i);
    if (hasTextureFace(mesh, static_cast<std::size_t>(i)))
        face.setTVerts(mesh.textureFaces[corner], mesh.textureFaces[corner + 1],
                       mesh.textureFaces[corner + 2]);
    else
        face.setTVerts(0, 0, 0);
}

}  // namespace

CMesh meshFromHost(const Mesh& mesh) {
    CMesh result;
    result.vertices.reserve(static_cast<std::size_t>(mesh.getNumVerts()));
    for (int i = 0; i < mesh.getNumVerts(); ++i)
        result.vertices.push_back(widened(mesh.verts[i]));
    result.textureVertices.reserve(static_cast<std::size_t>(mesh.getNumTVerts()));
    for (int i = 0; i < mesh.getNumTVerts(); ++i)
        result.textureVertices.push_back(widened(mesh.tVerts[i]));

    const std::size_t corners = 3 * static_cast<std::size_t>(mesh.getNumFaces());
    result.faces.resize(corners);
    result.textureFaces.resize(corners);
    const bool textured = mesh.getNumTVerts() > 0 && mesh.tvFace;
    for (std::size_t i = 0; i < corners; ++i) {
        result.faces[i] = static_cast<int>(mesh.faces[i / 3].v[i % 3]);
        if (textured) result.textureFaces[i] = static_cast<int>(mesh.tvFace[i / 3].t[i % 3]);
    }
    return result;
}

void writeHostMesh(const CMesh& mesh, Mesh& target) {
    writeVertices(mesh, target);
    writeTextureVertices(mesh, target);
    const int faces = mesh.faceCount();
    target.setNumFaces(faces, FALSE, TRUE);
    target.setNumTVFaces(faces, FALSE, 0);
    for (int i = 0; i < faces; ++i) {
        writeFace(mesh, i, target.faces[i]);
        writeTextureFace(mesh, i, target.tvFace[i]);
    }
    target.EnableEdgeList(1);
}

void notifyMeshChanged(Object& object, Mesh& mesh) {
    mesh.InvalidateGeomCache();
    mesh.InvalidateTopologyCache();
    object.NotifyDependents(FOREVER, PART_GEOM | PART_TOPO, REFMSG_CHANGE);
}

}  // namespace qvo::zmx::adaptor::max
