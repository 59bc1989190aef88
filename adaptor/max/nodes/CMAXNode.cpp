#include "adaptor/max/nodes/CMAXNode.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "adaptor/max/Boundary.h"
#include "adaptor/max/controllers/Conversion.h"
#include "adaptor/max/nodes/CMAXSnapshot.h"
#include "adaptor/max/nodes/CMAXSnapshot_Helper.h"
#include "adaptor/max/nodes/CMAXSnapshot_Lens.h"
#include "adaptor/max/nodes/CMAXSnapshot_Mesh.h"
#include "adaptor/max/nodes/CMAXSnapshot_Shape.h"
#include "adaptor/max/nodes/HostTime.h"
#include "adaptor/max/nodes/NodeInstanceRestoreObj.h"
#include "adaptor/max/services/MaxAdaptorInterface.h"
#include "util/Log.h"

namespace qvo::zmx::adaptor::max {

using util::Log;
using util::logLine;
using util::logValue;

namespace {

NodeRegistry& registry() {
    return MaxAdaptorInterface::instance().nodes();
}

/// The wrapper of a snapshot that is still lent goes.
template <class Lent>
void leaveLent(Lent& lent, const char* kind) {
    lent.wrapper = nullptr;
    logLine(Log::kError, "Encountered still acquired ", kind);
}

}  // namespace

void renameHostNode(INode& node, const std::string& name) {
    std::string hostName = name.substr(0, kMaxNodeName);
    node.SetName(hostName.data());
}

CMAXNode::CMAXNode(core::Owner* nodeOwner, std::string nodeName, CMAXNode* parent, INode* hostNode)
    : removed_(false), node_(hostNode) {
    name = std::move(nodeName);
    owner = nodeOwner;
    INode* const parentNode = parent ? parent->hostNode() : nullptr;
    if (parentNode && hostNode) parentNode->AttachChild(hostNode, TRUE);
    registry().add(*this);
}

CMAXNode::CMAXNode(CMAXNode* from, INode* hostNode) : removed_(true), node_(hostNode) {
    origin = from;
    originOwner_ = from ? from->owner : nullptr;
    if (const CMAXNode* const registered = hostNode ? registry().findByHandle(handle()) : nullptr) {
        name = registered->name;
        owner = registered->owner;
    } else if (hostNode) {
        name = hostNode->GetName();
    }
}

CMAXNode::~CMAXNode() {
    // First what nobody may find any more, whatever becomes of the log.
    guarded("~CMAXNode", [&] {
        for (NodeInstanceRestoreObj* const record : records_)
            record->withdraw();
        if (MaxAdaptorInterface* const adaptor = MaxAdaptorInterface::existing())
            adaptor->nodes().forget(*this);
    });
    std::optional<Log> section;
    guarded("~CMAXNode", [&] {
        section.emplace("Deconstructing node", Log::kNotice);
        logValue(*section, Log::kNotice, "name", getName());
        if (removed_) logLine(*section, Log::kNotice, "node is a snapshot");
    });
    guarded("~CMAXNode", [&] {
        snapshots_.dissolve([](CMAXSnapshot& lent) {
            lent.current = nullptr;
            leaveLent(lent, "snapshot");
        });
        helperSnapshots_.dissolve([](auto& lent) { leaveLent(lent, "helper snapshot"); });
        meshSnapshots_.dissolve([](auto& lent) { leaveLent(lent, "mesh snapshot"); });
        lensSnapshots_.dissolve([](auto& lent) { leaveLent(lent, "lens snapshot"); });
        shapeSnapshots_.dissolve([](auto& lent) { leaveLent(lent, "shape snapshot"); });
    });
}

// Lifetime

void CMAXNode::holdBy(NodeInstanceRestoreObj& record) {
    records_.push_back(&record);
}

void CMAXNode::letGoBy(NodeInstanceRestoreObj& record) {
    records_.erase(std::remove(records_.begin(), records_.end(), &record), records_.end());
}

void CMAXNode::abandon() {
    owner = nullptr;
    listener = nullptr;
    abandoned_ = true;
    destroyIfAbandoned();
}

void CMAXNode::destroyIfAbandoned() {
    if (abandoned_ && records_.empty()) destroy();
}

void CMAXNode::retireOrDestroy() {
    registry().remove(*this);
    MaxAdaptorInterface& adaptor = MaxAdaptorInterface::instance();
    if (owner && adaptor.isUndoRecording())
        adaptor.addOwnUndoRecord(new NodeInstanceRestoreObj(*this, false));  // the host owns it
    else
        destroy();
}

void CMAXNode::takeOut(CMAXNode& wrapper) {
    if (wrapper.listener) guarded("NodeListener::removed", [&] { wrapper.listener->removed(&wrapper); });
    if (registry().contains(wrapper)) wrapper.retireOrDestroy();
}

core::CoreNode* CMAXNode::claim(core::Owner* newOwner, std::string newName) {
    return guarded<core::CoreNode*>("claim", nullptr, [&]() -> core::CoreNode* {
        INode* const node = hostNode();
        if (!removed_ || !node || registry().findByHandle(handle())) return nullptr;
        return new CMAXNode(newOwner, std::move(newName), nullptr, node);  // the registry's from here on
    });
}

void CMAXNode::markRemoved() {
    guarded("markRemoved", [&] {
        if (removed_) return;
        removed_ = true;
        registry().remove(*this);
        owner = nullptr;
        origin = nullptr;
    });
}

void CMAXNode::releaseNode(core::CoreNode* node) {
    guarded("releaseNode", [&] {
        if (node) node->destroy();
    });
}

bool CMAXNode::deleteHostSide(bool deleteHostNode) {
    INode* const node = hostNode();
    if (!node) return false;
    if (!deleteHostNode) {
        convertNodeTransform(*node);
        convertNodeScalars(*node);
        return false;
    }
    MaxAdaptorInterface& adaptor = MaxAdaptorInterface::instance();
    if (adaptor.nodesBeingDeleted().contains(*node)) return false;
    adaptor.convertedObjects().remove(*node);
    GetCOREInterface()->DeleteNode(node, TRUE, FALSE);
    return true;
}

void CMAXNode::deleteNode(bool deleteHostNode) {
    guarded("deleteNode", [&] {
        if (!removed_) {
            registry().remove(*this);
            deleteHostSide(deleteHostNode);
            retireOrDestroy();
            return;
        }
        const bool borrowed = owner && (!origin || originOwner_ != owner);
        if (borrowed) return;  // a component cannot delete another component's node through a view of it
        const bool deleted = deleteHostSide(deleteHostNode);
        CMAXNode* const registered = deleted ? registry().findByHandle(handle()) : nullptr;
        if (registered) takeOut(*registered);
        destroy();
    });
}

// Names and notes

std::string CMAXNode::getName() {
    return guarded("getName", std::string(), [&] {
        INode* const node = hostNode();
        return node ? std::string(node->GetName()) : std::string();
    });
}

void CMAXNode::setName(std::string newName) {
    guarded("setName", [&] {
        if (INode* const node = hostNode()) renameHostNode(*node, newName);
    });
}

void CMAXNode::addAnnotation(const std::string& text) {
    guarded("addAnnotation", [&] { CoreNode::addAnnotation(text); });
}

void CMAXNode::getAnnotations(util::ReturnValue<std::vector<std::string>>& result) {
    guarded("getAnnotations", [&] { CoreNode::getAnnotations(result); });
}

// Snapshots

core::CoreNode::Snapshot* CMAXNode::acquireSnapshot(double seconds) {
    return guarded<Snapshot*>("acquireSnapshot", nullptr, [&]() -> Snapshot* {
        if (!hostNode()) return nullptr;
        CMAXSnapshot& snapshot = snapshots_.acquire(*this);
        snapshot.current = this;
        snapshot.node = node_;
        snapshot.time = seconds;
        snapshot.ticks = ticksFromSeconds(seconds);
        return &snapshot;
    });
}

void CMAXNode::releaseSnapshot(Snapshot* snapshot) {
    if (snapshot) static_cast<CMAXSnapshot*>(snapshot)->acquired = false;
}

}  // namespace qvo::zmx::adaptor::max
