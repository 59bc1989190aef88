#include <algorithm>

#include "adaptor/max/Boundary.h"
#include "adaptor/max/nodes/CMAXNode.h"
#include "adaptor/max/nodes/SelectionBatch.h"
#include "adaptor/max/services/MaxAdaptorInterface.h"

namespace qvo::zmx::adaptor::max {
namespace {

/// One pass over the nodes that the host is about to delete. While the host holds, an undo group makes the
/// records of the pass count as recording; it joins the host's hold and so ends nothing. The table has served
/// when the pass ends, however it ends: a node that undo brings back is not being deleted any more.
class DeletionPass {
  public:
    DeletionPass(UndoGroups& groups, DeletionTable& table)
        : groups_(groups), table_(table), hostHolds_(theHold.Holding() != 0) {
        if (hostHolds_) groups_.begin("Delete");
    }
    ~DeletionPass() {
        if (hostHolds_) guarded("endUndoGroup", [&] { groups_.end(); });
        table_.clear();
    }
    DeletionPass(const DeletionPass&) = delete;
    DeletionPass& operator=(const DeletionPass&) = delete;

  private:
    UndoGroups& groups_;
    DeletionTable& table_;
    bool hostHolds_;
};

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
    frameGrid_.letGo();
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
    nodes_.markAllRemoved();
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
    const DeletionPass pass(undoGroups_, nodesBeingDeleted_);
    const std::vector<ULONG> handles = nodesBeingDeleted_.handles();
    for (auto handle = handles.rbegin(); handle != handles.rend(); ++handle) {
        if (INode* const node = GetCOREInterface()->GetINodeByHandle(*handle))
            convertedObjects_.remove(*node);
        if (CMAXNode* const wrapper = nodes_.findByHandle(*handle)) CMAXNode::takeOut(*wrapper);
    }
}

}  // namespace qvo::zmx::adaptor::max
