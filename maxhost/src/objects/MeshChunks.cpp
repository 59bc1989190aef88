#include "maxhost/src/objects/MeshChunks.h"

#include <cstdint>

#include "maxhost/src/objects/ChunkData.h"

namespace maxhost {

namespace {

/// Stored in scene files; never change them.
constexpr USHORT kCountsChunk = 0x0200;
constexpr USHORT kVertsChunk = 0x0201;
constexpr USHORT kFacesChunk = 0x0202;
constexpr USHORT kTVertsChunk = 0x0203;
constexpr USHORT kTVFacesChunk = 0x0204;
constexpr std::int32_t kVersion = 1;

struct Counts {
    std::int32_t version = 0, verts = 0, faces = 0, tVerts = 0, tvFaces = 0;
};
static_assert(sizeof(Counts) == 20 && sizeof(Point3) == 12 && sizeof(Face) == 20 && sizeof(TVFace) == 12,
              "stored raw in scene files");

/// The lists of a mesh on their way in.
struct Lists {
    Counts counts;
    std::vector<Point3> verts, tVerts;
    std::vector<Face> faces;
    std::vector<TVFace> tvFaces;

    IOResult read(ILoad& load, USHORT id) {
        if (id == kCountsChunk) return readValue(load, counts);
        if (id == kVertsChunk) return readArray(load, verts);
        if (id == kFacesChunk) return readArray(load, faces);
        if (id == kTVertsChunk) return readArray(load, tVerts);
        if (id == kTVFacesChunk) return readArray(load, tvFaces);
        return IO_OK;
    }
    bool areWhole() const {
        const auto has = [](const auto& list, std::int32_t count) {
            return count >= 0 && list.size() == static_cast<size_t>(count);
        };
        const bool noneOrAllTextured = counts.tvFaces == 0 || counts.tvFaces == counts.faces;
        return counts.version == kVersion && has(verts, counts.verts) && has(faces, counts.faces) &&
               has(tVerts, counts.tVerts) && has(tvFaces, counts.tvFaces) && noneOrAllTextured;
    }
    void moveTo(Mesh& mesh) const {
        mesh.setNumVerts(counts.verts);
        mesh.setNumFaces(counts.faces);
        mesh.setNumTVerts(counts.tVerts);
        mesh.setNumTVFaces(counts.tvFaces);
        std::copy(verts.begin(), verts.end(), mesh.verts);
        std::copy(faces.begin(), faces.end(), mesh.faces);
        std::copy(tVerts.begin(), tVerts.end(), mesh.tVerts);
        std::copy(tvFaces.begin(), tvFaces.end(), mesh.tvFace);
    }
};

template <class T>
IOResult writeList(ISave& save, USHORT id, const T* items, int count) {
    return writeArray(save, id, items, static_cast<size_t>(count));
}

}  // namespace

IOResult saveMesh(ISave& save, const Mesh& mesh) {
    const Counts counts{kVersion, mesh.getNumVerts(), mesh.getNumFaces(), mesh.getNumTVerts(),
                        mesh.getNumTVFaces()};
    IOResult result = writeChunk(save, kCountsChunk, &counts, sizeof counts);
    if (result == IO_OK) result = writeList(save, kVertsChunk, mesh.verts, counts.verts);
    if (result == IO_OK) result = writeList(save, kFacesChunk, mesh.faces, counts.faces);
    if (result == IO_OK) result = writeList(save, kTVertsChunk, mesh.tVerts, counts.tVerts);
    if (result == IO_OK) result = writeList(save, kTVFacesChunk, mesh.tvFace, counts.tvFaces);
    return result;
}

IOResult loadMesh(ILoad& load, Mesh& mesh) {
    Lists lists;
    const IOResult read = readChunks(load, [&](USHORT id) { return lists.read(load, id); });
    if (read != IO_OK) return read;
    if (!lists.areWhole()) return IO_ERROR;
    lists.moveTo(mesh);
    return IO_OK;
}

}  // namespace maxhost
