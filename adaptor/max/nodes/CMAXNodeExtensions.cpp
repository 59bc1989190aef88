#include "adaptor/max/Boundary.h"
#include "adaptor/max/controllers/Conversion.h"
#include "adaptor/max/nodes/CMAXNode.h"
#include "adaptor/max/nodes/HostTime.h"
#include "adaptor/max/nodes/SelectionBatch.h"
#include "adaptor/max/services/UndoGroupScope.h"
#include "util/Log.h"

/// What a node offers beyond the fixed slots, and the clearing of its animation.
namespace qvo::zmx::adaptor::max {
namespace {

/// Deletes the keys after `ticks` from `animatable` and everything below it; a key exactly at `ticks` stays.
void deleteKeysAfter(Animatable& animatable, TimeValue ticks) {
    animatable.DeleteTime(Interval(ticks, TIME_PosInfinity), TIME_INCRIGHT);
    for (int i = 0; i < animatable.NumSubs(); ++i)
        if (Animatable* const sub = animatable.SubAnim(i)) deleteKeysAfter(*sub, ticks);
}

}  // namespace

std::vector<unsigned int> CMAXNode::getExtensions() {
    return guarded("getExtensions", std::vector<unsigned int>(), [] {
        return std::vector<unsigned int>{kOpenSelectionBatch, kCloseSelectionBatch, kStopDriving,
                                         kCloneUnder,         kIsSameNode,          kRenameUndoable};
    });
}

std::intptr_t CMAXNode::extension(int id, void* argument) {
    return guarded<std::intptr_t>("extension", 0, [&]() -> std::intptr_t {
        switch (id) {
            case kOpenSelectionBatch:
                return SelectionBatch::open() ? 1 : 0;
            case kCloseSelectionBatch:
                return SelectionBatch::close() ? 1 : 0;
            case kStopDriving:
                driven = false;
                convertHostController();
                return 0;
            case kConvertController:
                convertHostController();
                return 0;
            case kIsSameNode:
                return argument && static_cast<core::CoreNode*>(argument)->isSameNode(this) ? 1 : 0;
            case kRenameUndoable:
                if (argument) renameUndoable(*static_cast<const std::string*>(argument));
                return 0;
            case kCloneUnder:
                return reinterpret_cast<std::intptr_t>(cloneUnder(static_cast<core::CoreNode*>(argument)));
            default:
                util::logLine(util::Log::kWarning, "3ds max node: Caught unhandled extension ", id);
                return 0;
        }
    });
}

void CMAXNode::convertHostController() {
    INode* const node = hostNode();
    if (!node || !isTransformControl(node->GetTMController())) return;
    convertNodeTransform(*node);
    convertNodeScalars(*node);
}

void CMAXNode::renameUndoable(const std::string& newName) {
    const UndoGroupScope group("NODE_SETLABEL");
    setName(newName);
}

core::CoreNode* CMAXNode::cloneUnder(core::CoreNode* parent) {
    INode* const parentNode = parent ? of(parent)->hostNode() : nullptr;
    INode* const copy = cloneHostNode(true);
    if (!copy) return nullptr;
    if (parentNode) parentNode->AttachChild(copy, FALSE);
    return new CMAXNode(this, copy);  // the core's
}

void CMAXNode::clearAnimationFrom(double seconds) {
    guarded("clearAnimationFrom", [&] {
        INode* const node = hostNode();
        if (!driven || !node) return;
        const TimeValue ticks = ticksFromSeconds(seconds);
        deleteKeysAfter(*node, ticks);
        if (Object* const object = node->GetObjectRef()) deleteKeysAfter(*object, ticks);
    });
}

}  // namespace qvo::zmx::adaptor::max
