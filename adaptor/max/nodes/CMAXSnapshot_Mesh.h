#pragma once

#include "adaptor/max/nodes/CMAXNode.h"

namespace qvo::zmx::adaptor::max {

/// A host node's triangle mesh, evaluated at acquisition. The mesh is the node's own where it has one;
/// otherwise one converted from the node's object: shared through the adaptor's ConvertedObjects, or this
/// snapshot's own while the option "Use dynamic meshes" is on.
class CMAXNode::CMAXSnapshot_Mesh : public core::CoreNode::Snapshot_Mesh {
  public:
    explicit CMAXSnapshot_Mesh(CMAXNode& from) : wrapper(&from) {}

    ~CMAXSnapshot_Mesh() override;

    CMAXSnapshot_Mesh(const CMAXSnapshot_Mesh&) = delete;
    CMAXSnapshot_Mesh& operator=(const CMAXSnapshot_Mesh&) = delete;

    /// Takes the mesh of the node at `ticks`; none when its object cannot become a triangle mesh.
    void evaluate(INode& hostNode, TimeValue ticks);

    void setMesh(const util::CMesh& mesh) override;
    util::CMesh getMesh() override;
    bool intersectRay(const double* origin, const double* direction, double* hitDistance,
                      double* hitNormal) override;
    bool getMesh(util::ReturnValue<util::CMesh>& sink) override;

    CMAXNode* wrapper;  ///< null once the wrapper is gone
    bool acquired = false;
    bool ownsObject = false;
    TriObject* object = nullptr;  ///< whose mesh is read and written; null: none
    HostNodeRef node;

  private:
    /// The object, or null when it has been replaced or deleted since the acquisition.
    TriObject* usableObject();

    /// Whether an object that the host owns is still the node's.
    bool isHostsOwn(INode& present) const;
    void freeOwnObject();

    bool shared_ = false;  ///< the object is the adaptor's converted one
    TimeValue ticks_ = 0;
};

}  // namespace qvo::zmx::adaptor::max
