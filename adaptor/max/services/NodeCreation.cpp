#include "adaptor/max/services/NodeCreation.h"

#include <memory>

#include "adaptor/max/controllers/Conversion.h"
#include "adaptor/max/nodes/CMAXNode.h"
#include "adaptor/max/nodes/CustomHelperObject.h"
#include "adaptor/max/nodes/HostSpace.h"
#include "adaptor/max/nodes/NodeInstanceRestoreObj.h"
#include "adaptor/max/plugin/ClassIds.h"
#include "adaptor/max/plugin/OptionStore.h"
#include "adaptor/max/plugin/UtilityManager.h"
#include "adaptor/max/services/MaxAdaptorInterface.h"

namespace qvo::zmx::adaptor::max {
namespace {

/// Half the width of a new helper's marker, in meters.
constexpr double kMarkerRadius = 0.02;

/// An octahedron, so that a helper can be seen, picked and saved before the core gives it a shape of its own.
util::CMesh defaultMarker() {
    const double r = kMarkerRadius * systemUnitsPerMeter();
    util::CMesh marker;
    marker.vertices = {{r, 0, 0}, {-r, 0, 0}, {0, r, 0}, {0, -r, 0}, {0, 0, r}, {0, 0, -r}};
    marker.faces = {0, 2, 4, 2, 1, 4, 1, 3, 4, 3, 0, 4, 2, 0, 5, 1, 2, 5, 3, 1, 5, 0, 3, 5};
    return marker;
}

/// A scene node under construction: taken out of the scene again, together with its wrapper, unless it is
/// kept.
class PendingNode {
  public:
    explicit PendingNode(INode* node) : node_(node) {}
    ~PendingNode() {
        if (wrapper_) wrapper_->destroy();
        if (node_) GetCOREInterface()->DeleteNode(node_, FALSE, FALSE);
    }
    PendingNode(const PendingNode&) = delete;
    PendingNode& operator=(const PendingNode&) = delete;

    void wrap(CMAXNode* wrapper) { wrapper_ = wrapper; }
    CMAXNode* keep() {
        node_ = nullptr;
        return std::exchange(wrapper_, nullptr);
    }

  private:
    INode* node_;
    CMAXNode* wrapper_ = nullptr;
};

std::string hostNameFor(const NodeRequest& request) {
    return (request.owner ? request.owner->getName() : std::string()) + "_" + request.name;
}

INode* createHostNode(Object* object) {
    if (!object) return nullptr;
    INode* const node = GetCOREInterface()->CreateObjectNode(object);
    if (!node) object->MaybeAutoDelete();
    return node;
}

Object* createMarkerObject() {
    auto* const helper = static_cast<CustomHelperObject*>(
        static_cast<Object*>(GetCOREInterface()->CreateInstance(HELPER_CLASS_ID, kHelperClassId)));
    if (!helper) return nullptr;
    helper->setShape(defaultMarker());
    helper->setWireframe(true);
    helper->setMarkerWhenEmpty(true);
    helper->setPivotAxes(true);
    return helper;
}

/// The steps that every created node has in common, in this order.
CMAXNode* adopt(INode* node, const std::string& hostName, const NodeRequest& request) {
    if (!node) return nullptr;
    PendingNode pending(node);
    auto* const wrapper = new CMAXNode(request.owner, request.name, request.parent, node);  // the registry's
    pending.wrap(wrapper);
    wrapper->listener = request.listener;
    if (UtilityManager::instance().options().value(kOptimizedControllerOption))
        installTransformControl(*node);
    renameHostNode(*node, hostName);

    MaxAdaptorInterface& adaptor = MaxAdaptorInterface::instance();
    if (adaptor.isUndoRecording()) {
        auto* const record = new NodeInstanceRestoreObj(*wrapper, false);  // addOwnUndoRecord takes it
        record->restore(false);
        adaptor.addOwnUndoRecord(record);
    }
    return pending.keep();
}

}  // namespace

CMAXNode* createHelper(const NodeRequest& request) {
    const std::string hostName = hostNameFor(request);
    return adopt(createHostNode(createMarkerObject()), hostName, request);
}

}  // namespace qvo::zmx::adaptor::max
