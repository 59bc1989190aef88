#include <algorithm>

#include "adaptor/max/nodes/CMAXNode.h"
#include "adaptor/max/nodes/SelectionBatch.h"
#include "adaptor/max/services/Boundary.h"
#include "adaptor/max/services/MaxAdaptorInterface.h"

namespace qvo::zmx::adaptor::max {
namespace {

/// The user's deletion of a node that the core made: the listener hears of it, and the wrapper waits in the
/// host's hold for the user's undo, or goes.
void takeOut(CMAXNode& wrapper) {
    if (wrapper.listener) guarded("NodeListener::removed", [&] { wrapper.listener->removed(&wrapper); });
    wrapper.retireOrDestroy();
}

}  // namespace

void MaxAdaptorInterface::letGoOfCore() {
    undoGroups_.endAll();
    keyBatch_.endAll();
    CUndoWrapper::releaseCoreRecords();
    sceneExpected_ = false;
    nodes_.abandonAll();
    nodesBeingDeleted_.clear();
    convertedObjects_.clear();
    gathering_.dropRecords();
    cutWires();
    SelectionBatch::close();
    frameGrid_.setMultiplier(1);
}

void MaxAdaptorInterface::sceneArrived() {
    if (sceneExpected_) sceneClosed();
}

void MaxAdaptorInterface::sceneRefused() {
    const auto& all = nodes_.inOrder();
    if (std::none_of(all.begin(), all.end(), [](CMAXNode* wrapper) { return wrapper->hostNode(); }))
        sceneArrived();
    sceneExpected_ = false;
}

void MaxAdaptorInterface::sceneClosed() {
    sceneExpected_ = false;
    nodes_.retireAll();
    nodesBeingDeleted_.clear();
    convertedObjects_.clear();
    SelectionBatch::close();
}

void MaxAdaptorInterface::nodesAboutToBeDeleted(const Tab<INode*>* nodes) {
    if (nodes)
        nodesBeingDeleted_.assign(*nodes);
    else
        nodesBeingDeleted_.clear();
}

void MaxAdaptorInterface::nodesDeleted() {
    // The group makes the records count as recording; it joins the host's own hold and so ends nothing.
    const bool hostHolds = theHold.Holding() != 0;
    if (hostHolds) undoGroups_.begin("Delete");
    const std::vector<ULONG> handles = nodesBeingDeleted_.handles();
    for (auto handle = handles.rbegin(); handle != handles.rend(); ++handle) {
        if (INode* const node = GetCOREInterface()->GetINodeByHandle(*handle))
            convertedObjects_.remove(*node);
        if (CMAXNode* const wrapper = nodes_.findByHandle(*handle)) takeOut(*wrapper);
    }
    if (hostHolds) undoGroups_.end();
}

}  // namespace qvo::zmx::adaptor::max
