#pragma once

#include "adaptor/max/Host.h"
#include "util/CMesh.h"

/// Meshes between core and host. Coordinates are object-local host coordinates in system units on both sides:
/// no axis change, no unit factor, no winding change; doubles and floats are converted.
namespace qvo::zmx::adaptor::max {

inline Point3 narrowed(const util::Point3d& point) {
    return Point3(static_cast<float>(point.x), static_cast<float>(point.y), static_cast<float>(point.z));
}

/// The host mesh as a record. Texture faces are zero when the mesh has no texture vertices.
util::CMesh meshFromHost(const Mesh& mesh);

/// Rewrites the host mesh. Trailing indices that make no triangle are ignored; vertex indices are handed on
/// as they are. Without texture vertices the mesh gets one at (0, 0, 0). Nothing is invalidated or redrawn.
void writeHostMesh(const util::CMesh& mesh, Mesh& target);

/// Tells everyone who shows `object` that its mesh has changed.
void notifyMeshChanged(Object& object, Mesh& mesh);

}  // namespace qvo::zmx::adaptor::max
