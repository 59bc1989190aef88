#include "adaptor/max/Boundary.h"
#include "adaptor/max/nodes/CMAXNode.h"
#include "adaptor/max/nodes/CMAXSnapshot_Helper.h"
#include "adaptor/max/nodes/CMAXSnapshot_Lens.h"
#include "adaptor/max/nodes/CMAXSnapshot_Mesh.h"
#include "adaptor/max/nodes/CMAXSnapshot_Shape.h"
#include "adaptor/max/nodes/HostTime.h"

/// Snapshots of what a node shows: helper, mesh, lens, shape.
namespace qvo::zmx::adaptor::max {
namespace {

bool isOfSuperClass(Object* object, SClass_ID superClass) {
    return object && object->SuperClassID() == superClass;
}

/// Ends the lending of a snapshot, of whatever kind.
template <class Own, class Lent>
void giveBack(Lent* snapshot) {
    if (snapshot) static_cast<Own*>(snapshot)->acquired = false;
}

}  // namespace

template <class Kind>
Kind* CMAXNode::acquireOfClass(SClass_ID superClass, SnapshotPool<Kind>& pool, double seconds) {
    INode* const node = hostNode();
    Object* const object = node ? node->GetObjectRef() : nullptr;
    if (!isOfSuperClass(object, superClass)) return nullptr;
    Kind& snapshot = pool.acquire(*this);
    snapshot.object = static_cast<decltype(snapshot.object)>(object);
    snapshot.node = node_;
    snapshot.time = seconds;
    snapshot.ticks = ticksFromSeconds(seconds);
    return &snapshot;
}

core::CoreNode::Snapshot_Helper* CMAXNode::acquireHelperSnapshot() {
    return guarded<Snapshot_Helper*>("acquireHelperSnapshot", nullptr, [&]() -> Snapshot_Helper* {
        INode* const node = hostNode();
        Object* const object = node ? node->GetObjectRef() : nullptr;
        if (!node || isOfSuperClass(object, CAMERA_CLASS_ID)) return nullptr;
        CMAXSnapshot_Helper& snapshot = helperSnapshots_.acquire(*this);
        snapshot.object = object;
        snapshot.node = node_;
        return &snapshot;
    });
}

core::CoreNode::Snapshot_Mesh* CMAXNode::acquireMeshSnapshot(double seconds) {
    return guarded<Snapshot_Mesh*>("acquireMeshSnapshot", nullptr, [&]() -> Snapshot_Mesh* {
        INode* const node = hostNode();
        Object* const object = node ? node->GetObjectRef() : nullptr;
        if (!node || isOfSuperClass(object, CAMERA_CLASS_ID)) return nullptr;
        CMAXSnapshot_Mesh& snapshot = meshSnapshots_.acquire(*this);
        snapshot.acquired = false;  // lent only once it is evaluated
        snapshot.evaluate(*node, ticksFromSeconds(seconds));
        snapshot.acquired = true;
        return &snapshot;
    });
}

core::CoreNode::Snapshot_Lens* CMAXNode::acquireLensSnapshot(double seconds) {
    return guarded<Snapshot_Lens*>("acquireLensSnapshot", nullptr,
                                   [&] { return acquireOfClass(CAMERA_CLASS_ID, lensSnapshots_, seconds); });
}

core::CoreNode::Snapshot_Shape* CMAXNode::acquireShapeSnapshot(double seconds) {
    return guarded<Snapshot_Shape*>("acquireShapeSnapshot", nullptr,
                                    [&] { return acquireOfClass(SHAPE_CLASS_ID, shapeSnapshots_, seconds); });
}

void CMAXNode::releaseHelperSnapshot(Snapshot_Helper* snapshot) {
    giveBack<CMAXSnapshot_Helper>(snapshot);
}
void CMAXNode::releaseMeshSnapshot(Snapshot_Mesh* snapshot) {
    giveBack<CMAXSnapshot_Mesh>(snapshot);
}
void CMAXNode::releaseLensSnapshot(Snapshot_Lens* snapshot) {
    giveBack<CMAXSnapshot_Lens>(snapshot);
}
void CMAXNode::releaseShapeSnapshot(Snapshot_Shape* snapshot) {
    giveBack<CMAXSnapshot_Shape>(snapshot);
}

}  // namespace qvo::zmx::adaptor::max
