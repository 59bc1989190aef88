#include "adaptor/max/services/NodeCreation.h"

#include <string>
#include <utility>

#include "adaptor/max/ClassIds.h"
#include "adaptor/max/controllers/Conversion.h"
#include "adaptor/max/nodes/CMAXNode.h"
#include "adaptor/max/nodes/CustomHelperObject.h"
#include "adaptor/max/nodes/MeshTransfer.h"
#include "adaptor/max/nodes/NodeInstanceRestoreObj.h"
#include "adaptor/max/plugin/OptionStore.h"
#include "adaptor/max/plugin/UtilityManager.h"
#include "adaptor/max/services/MaxAdaptorInterface.h"
#include "util/Log.h"

namespace qvo::zmx::adaptor::max {

using util::Log;
using util::logLine;
using util::logValue;

namespace {

/// Pure red.
constexpr DWORD kMeshWireColor = 255;

/// Half the width of a new helper, in object units. The transforms that the core sets carry the meter as
/// their scale, so that this is in meters.
constexpr double kDefaultShapeRadius = 0.01;

/// An octahedron, so that a helper can be seen, picked and saved before the core gives it a shape of its own.
util::CMesh defaultShape() {
    constexpr double r = kDefaultShapeRadius;
    util::CMesh shape;
    shape.vertices = {{r, 0, 0}, {-r, 0, 0}, {0, r, 0}, {0, -r, 0}, {0, 0, r}, {0, 0, -r}};
    shape.faces = {0, 2, 4, 2, 1, 4, 1, 3, 4, 3, 0, 4, 2, 0, 5, 1, 2, 5, 3, 1, 5, 0, 3, 5};
    return shape;
}

/// A scene node under construction, with its registered wrapper: both are taken back unless they are kept.
class PendingNode {
  public:
    PendingNode(INode& node, const NodeRequest& request) : node_(&node) {
        try {
            wrapper_ = new CMAXNode(request.owner, request.name, request.parent, &node);  // the registry's
        } catch (...) {
            deleteNode();
            throw;
        }
    }
    ~PendingNode() {
        if (wrapper_) wrapper_->destroy();
        if (node_) deleteNode();
    }
    PendingNode(const PendingNode&) = delete;
    PendingNode& operator=(const PendingNode&) = delete;

    CMAXNode& wrapper() { return *wrapper_; }

    CMAXNode* keep() {
        node_ = nullptr;
        return std::exchange(wrapper_, nullptr);
    }

  private:
    void deleteNode() { GetCOREInterface()->DeleteNode(node_, FALSE, FALSE); }

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

Object* createHelperObject() {
    auto* const helper = static_cast<CustomHelperObject*>(
        static_cast<Object*>(GetCOREInterface()->CreateInstance(HELPER_CLASS_ID, kHelperClassId)));
    if (!helper) return nullptr;
    helper->setShape(defaultShape());
    helper->setWireframe(true);
    helper->setMarkerWhenEmpty(true);
    helper->setPivotAxes(true);
    return helper;
}

void installController(INode& node) {
    if (UtilityManager::instance().options().value(kOptimizedControllerOption)) installTransformControl(node);
}

/// From here on undo takes node and wrapper out together, and redo brings them back.
void recordCreation(CMAXNode& wrapper) {
    MaxAdaptorInterface& adaptor = MaxAdaptorInterface::instance();
    if (!adaptor.isUndoRecording()) return;
    auto* const record = new NodeInstanceRestoreObj(wrapper, false);  // addOwnUndoRecord takes it
    record->restore(false);
    adaptor.addOwnUndoRecord(record);
}

}  // namespace

CMAXNode* createHelper(const NodeRequest& request) {
    const std::string hostName = hostNameFor(request);
    INode* const node = createHostNode(createHelperObject());
    if (!node) return nullptr;
    PendingNode pending(*node, request);
    pending.wrapper().listener = request.listener;
    installController(*node);
    renameHostNode(*node, hostName);
    recordCreation(pending.wrapper());
    return pending.keep();
}

CMAXNode* createMesh(const NodeRequest& request, const util::CMesh& mesh) {
    const std::string hostName = hostNameFor(request);
    Log section("creating helper: " + request.name, Log::kNotice);
    logValue(section, Log::kNotice, "parent", request.parent ? request.parent->getName() : "(NULL)");
    TriObject* const object = CreateNewTriObject();
    if (!object) {
        logLine(section, Log::kNotice, "Unable to create 3ds max mesh object");
        return nullptr;
    }
    INode* const node = createHostNode(object);
    if (!node) {
        logLine(section, Log::kNotice, "Error creating node reference");
        return nullptr;
    }
    PendingNode pending(*node, request);
    node->SetWireColor(kMeshWireColor);
    writeHostMesh(mesh, object->GetMesh());
    notifyMeshChanged(*object, object->GetMesh());
    pending.wrapper().listener = request.listener;
    installController(*node);
    recordCreation(pending.wrapper());
    renameHostNode(*node, hostName);
    return pending.keep();
}

}  // namespace qvo::zmx::adaptor::max
