#include "adaptor/max/nodes/CMAXSnapshot_Mesh.h"

#include "adaptor/max/Boundary.h"
#include "adaptor/max/nodes/MeshTransfer.h"
#include "adaptor/max/plugin/OptionStore.h"
#include "adaptor/max/plugin/UtilityManager.h"
#include "adaptor/max/services/MaxAdaptorInterface.h"
#include "util/ReturnInto.h"

namespace qvo::zmx::adaptor::max {
namespace {

ConvertedObjects& sharedObjects() {
    return MaxAdaptorInterface::instance().convertedObjects();
}

Point3 hostPoint(const double* components) {
    return narrowed(util::Point3d{components[0], components[1], components[2]});
}

}  // namespace

CMAXNode::CMAXSnapshot_Mesh::~CMAXSnapshot_Mesh() {
    guarded("~CMAXSnapshot_Mesh", [&] { freeOwnObject(); });
}

void CMAXNode::CMAXSnapshot_Mesh::freeOwnObject() {
    if (ownsObject) ConvertedObjects::destroy(object);
    ownsObject = false;
    shared_ = false;
    object = nullptr;
}

void CMAXNode::CMAXSnapshot_Mesh::evaluate(INode& hostNode, TimeValue ticks) {
    freeOwnObject();
    node = HostNodeRef(&hostNode);
    ticks_ = ticks;
    const bool dynamic = UtilityManager::instance().options().value(kDynamicMeshesOption);
    if (!dynamic && (object = sharedObjects().find(hostNode))) {
        shared_ = true;
        return;
    }

    const Class_ID triangles(TRIOBJ_CLASS_ID, 0);
    const ObjectState state = hostNode.EvalWorldState(ticks, TRUE);
    if (!state.obj || !state.obj->CanConvertToType(triangles)) return;
    Object* const converted = state.obj->ConvertToType(ticks, triangles);
    object = static_cast<TriObject*>(converted);
    if (!converted || converted == state.obj) return;  // the host's own object

    ownsObject = true;
    if (dynamic) return;
    sharedObjects().store(hostNode, object);
    ownsObject = false;
    shared_ = true;
}

bool CMAXNode::CMAXSnapshot_Mesh::isHostsOwn(INode& present) const {
    // Without modifiers the node refers to it; with some it is what they evaluate to.
    return present.GetObjectRef() == object || present.EvalWorldState(ticks_, TRUE).obj == object;
}

TriObject* CMAXNode::CMAXSnapshot_Mesh::usableObject() {
    if (!object || ownsObject) return object;
    INode* const present = node.get();
    const bool usable =
        present && (shared_ ? sharedObjects().find(*present) == object : isHostsOwn(*present));
    if (!usable) object = nullptr;
    return object;
}

void CMAXNode::CMAXSnapshot_Mesh::setMesh(const util::CMesh& mesh) {
    guarded("setMesh", [&] {
        if (TriObject* const target = usableObject()) writeHostMesh(mesh, target->GetMesh());
    });
}

util::CMesh CMAXNode::CMAXSnapshot_Mesh::getMesh() {
    util::CMesh mesh;
    guarded("getMesh", [&] {
        util::ReturnInto<util::CMesh> sink(mesh);
        getMesh(sink);
    });
    return mesh;
}

bool CMAXNode::CMAXSnapshot_Mesh::getMesh(util::ReturnValue<util::CMesh>& sink) {
    return guarded("getMesh", false, [&] {
        TriObject* const source = usableObject();
        if (!source) return false;
        sink.set(meshFromHost(source->GetMesh()));
        return true;
    });
}

bool CMAXNode::CMAXSnapshot_Mesh::intersectRay(const double* origin, const double* direction,
                                               double* hitDistance, double* hitNormal) {
    return guarded("intersectRay", false, [&] {
        TriObject* const target = usableObject();
        if (!target || !origin || !direction) return false;
        Ray ray;
        ray.p = hostPoint(origin);
        ray.dir = hostPoint(direction);
        float at = 0;
        Point3 normal(0, 0, 0);
        const bool hit = target->GetMesh().IntersectRay(ray, at, normal) != 0;
        if (hitDistance) *hitDistance = at;
        if (hitNormal) {
            hitNormal[0] = normal.x;
            hitNormal[1] = normal.y;
            hitNormal[2] = normal.z;
        }
        return hit;
    });
}

}  // namespace qvo::zmx::adaptor::max
