#include "adaptor/max/nodes/CMAXNode.h"
#include "util/Log.h"

/// Snapshots of what a node shows: helper, mesh, lens, shape.
namespace qvo::zmx::adaptor::max {
namespace {

/// What the adaptor cannot do is answered with the operation's failure value and noted in the log.
void noteUnavailable(const char* operation) {
    util::logLine(util::Log::kWarning, "This version of the adaptor does not offer ", operation);
}

}  // namespace

core::CoreNode::Snapshot_Helper* CMAXNode::acquireHelperSnapshot() {
    noteUnavailable("acquireHelperSnapshot");
    return nullptr;
}

core::CoreNode::Snapshot_Mesh* CMAXNode::acquireMeshSnapshot(double) {
    noteUnavailable("acquireMeshSnapshot");
    return nullptr;
}

core::CoreNode::Snapshot_Lens* CMAXNode::acquireLensSnapshot(double) {
    noteUnavailable("acquireLensSnapshot");
    return nullptr;
}

core::CoreNode::Snapshot_Shape* CMAXNode::acquireShapeSnapshot(double) {
    noteUnavailable("acquireShapeSnapshot");
    return nullptr;
}

// Nothing was lent, so there is nothing to take back.
void CMAXNode::releaseHelperSnapshot(Snapshot_Helper*) {}
void CMAXNode::releaseMeshSnapshot(Snapshot_Mesh*) {}
void CMAXNode::releaseLensSnapshot(Snapshot_Lens*) {}
void CMAXNode::releaseShapeSnapshot(Snapshot_Shape*) {}

}  // namespace qvo::zmx::adaptor::max
