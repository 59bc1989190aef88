#pragma once

#include <ioapi.h>
#include <mesh.h>

namespace maxhost {

/// A mesh as chunks of a scene file: its four counts, then one chunk for each list that is not empty. Indices
/// are kept as they are. IO_ERROR when the file cannot be written.
IOResult saveMesh(ISave& save, const Mesh& mesh);

/// Reads what saveMesh wrote. IO_ERROR, and `mesh` as it was, for another version, for lists that are not as
/// long as the counts say, and for texture faces that are not as many as the faces; the counts themselves
/// take no memory. Unknown chunks are skipped.
IOResult loadMesh(ILoad& load, Mesh& mesh);

}  // namespace maxhost
