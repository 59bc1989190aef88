#include "adaptor/max/Boundary.h"
#include "adaptor/max/nodes/CMAXNode.h"
#include "adaptor/max/plugin/UtilityManager.h"
#include "adaptor/max/services/AdaptorOptions.h"
#include "adaptor/max/services/MaxAdaptorInterface.h"
#include "adaptor/max/services/NodeCreation.h"
#include "adaptor/max/services/NodeLookup.h"
#include "adaptor/max/services/NodeTagging.h"
#include "adaptor/max/services/SceneMerge.h"

/// The operations on meshes, tags, other scene files and options.
namespace qvo::zmx::adaptor::max {
namespace {

/// Hands new views to the core's sink, which owns them once it has taken them.
void deliver(std::vector<std::unique_ptr<CMAXNode>> views, core::AdaptorInterface::NodeList& result) {
    std::vector<core::CoreNode*> handed;
    handed.reserve(views.size());
    for (const auto& view : views)
        handed.push_back(view.get());
    result.set(handed);
    for (auto& view : views)
        static_cast<void>(view.release());
}

}  // namespace

core::CoreNode* MaxAdaptorInterface::createMeshNode(core::Owner* owner, const std::string& name,
                                                    core::CoreNode* parent, const util::CMesh& mesh,
                                                    NodeListener* listener) {
    return guarded<core::CoreNode*>("createMeshNode", nullptr, [&] {
        return createMesh({owner, name, CMAXNode::of(parent), listener}, mesh);
    });
}

void MaxAdaptorInterface::tagOwnedNodes(core::Owner* owner) {
    guarded("tagOwnedNodes", [&] {
        if (owner) tagNodesOf(*owner, nodes_);
    });
}

void MaxAdaptorInterface::gatherNodes() {
    guarded("gatherNodes", [&] {
        if (core::CoreObject* const core = UtilityManager::instance().core) gathering_.run(*core, nodes_);
    });
}

void MaxAdaptorInterface::lookupNode(const std::string& ownerName, const util::xml::Element& request,
                                     NodeList& result) {
    guarded("lookupNode", [&] { deliver(lookUpNodes(ownerName, request, gathering_.records()), result); });
}

void MaxAdaptorInterface::mergeFile(const std::string& path, NodeList& result) {
    guarded("mergeFile", [&] { deliver(mergeScene(path, *this), result); });
}

void MaxAdaptorInterface::bindAdaptorOptions(core::OptionGroup* options) {
    guarded("bindAdaptorOptions", [&] {
        if (options) bindOptions(*options, *this);
    });
}

void MaxAdaptorInterface::receive(util::Message& message, bool /*broadcast*/) {
    guarded("receive", [&] { handleOptionMessage(message); });
}

}  // namespace qvo::zmx::adaptor::max
