#include <algorithm>

#include <mesh.h>

namespace {

/// Gives `array` room for `count` fresh elements, the first `kept` of them taken from the old ones.
template <class T>
BOOL resizeArray(T*& array, int& oldCount, int count, int kept) {
    if (count < 0) return FALSE;
    T* fresh = count == 0 ? nullptr : new T[static_cast<size_t>(count)];
    for (int i = std::min({kept, oldCount, count}); i-- > 0;)
        fresh[i] = array[i];
    delete[] array;
    array = fresh;
    oldCount = count;
    return TRUE;
}

}  // namespace

Mesh::Mesh(const Mesh& other) : BaseInterfaceServer(other) {
    *this = other;
}

Mesh& Mesh::operator=(const Mesh& other) {
    if (this == &other) return *this;
    setNumVerts(other.numVerts);
    setNumFaces(other.numFaces);
    setNumTVerts(other.numTVerts);
    setNumTVFaces(other.numTVFaces_);
    std::copy_n(other.verts, numVerts, verts);
    std::copy_n(other.faces, numFaces, faces);
    std::copy_n(other.tVerts, numTVerts, tVerts);
    std::copy_n(other.tvFace, numTVFaces_, tvFace);
    return *this;
}

Mesh::~Mesh() {
    FreeAll();
}

BOOL Mesh::setNumVerts(int ct, BOOL keep, BOOL) {
    return resizeArray(verts, numVerts, ct, keep ? ct : 0);
}
BOOL Mesh::setNumFaces(int ct, BOOL keep, BOOL) {
    return resizeArray(faces, numFaces, ct, keep ? ct : 0);
}
BOOL Mesh::setNumTVerts(int ct, BOOL keep) {
    return resizeArray(tVerts, numTVerts, ct, keep ? ct : 0);
}

BOOL Mesh::setNumTVFaces(int ct, BOOL keep, int oldCt) {
    const int wanted = oldCt > 0 ? oldCt : ct;
    return resizeArray(tvFace, numTVFaces_, ct, keep ? wanted : 0);
}

Box3 Mesh::getBoundingBox(Matrix3* tm) {
    Box3 box;
    for (int i = 0; i < numVerts; ++i)
        box += tm == nullptr ? verts[i] : verts[i] * *tm;
    return box;
}

void Mesh::FreeAll() {
    setNumVerts(0);
    setNumFaces(0);
    setNumTVerts(0);
    setNumTVFaces(0);
}
