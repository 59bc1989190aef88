#pragma once

#include "core/CExtendable.h"
#include "util/CMesh.h"

namespace qvo::zmx {

/// A node's triangle mesh at one moment. Coordinates are object-local, in the host's axes and system units;
/// no node transform is applied in either direction.
class CSnapshot_Mesh : public CExtendable {
  public:
    /// Replaces the node's mesh. Nothing happens when the node has no triangle mesh.
    virtual void setMesh(const util::CMesh& mesh) = 0;  // slot 3

    /// The node's mesh, empty when there is none.
    virtual util::CMesh getMesh() = 0;  // slot 4

    /// Casts a ray. `origin` and `direction` are three doubles each; the two results may be null.
    /// hitDistance  in multiples of the direction's length
    /// hitNormal    three doubles, the face's normal
    /// returns      true when the mesh is hit in front of the origin
    virtual bool intersectRay(const double* origin, const double* direction, double* hitDistance,
                              double* hitNormal) = 0;  // slot 5

    virtual ~CSnapshot_Mesh() = default;  // slot 6

  protected:
    CSnapshot_Mesh() = default;
    CSnapshot_Mesh(const CSnapshot_Mesh&) = default;
    CSnapshot_Mesh& operator=(const CSnapshot_Mesh&) = default;
};

}  // namespace qvo::zmx
