#pragma once

#include <mesh.h>

namespace maxhost {

/// Whether the three indices of the face are those of vertices. A mesh takes whatever indices it is given, so
/// everything that looks vertices up asks here first.
inline bool namesVertices(const Mesh& mesh, const Face& face) {
    const auto count = static_cast<DWORD>(mesh.numVerts);
    return face.v[0] < count && face.v[1] < count && face.v[2] < count;
}

}  // namespace maxhost
