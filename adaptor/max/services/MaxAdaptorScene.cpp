#include "adaptor/max/plugin/UtilityManager.h"
#include "adaptor/max/services/AdaptorOptions.h"
#include "adaptor/max/services/Boundary.h"
#include "adaptor/max/services/MaxAdaptorInterface.h"
#include "adaptor/max/services/NodeLookup.h"
#include "adaptor/max/services/NodeTagging.h"
#include "util/Log.h"

/// The operations on meshes, tags, other scene files and options.
namespace qvo::zmx::adaptor::max {
namespace {

/// What the adaptor cannot do is answered with the operation's failure value and noted in the log.
void noteUnavailable(const char* operation) {
    util::logLine(util::Log::kWarning, "This version of the adaptor does not offer ", operation);
}

/// Hands new views to the core's sink; they are destroyed when it does not take them.
void deliver(const std::vector<core::CoreNode*>& views, core::AdaptorInterface::NodeList& result) {
    try {
        result.set(views);
    } catch (...) {
        for (core::CoreNode* const view : views)
            if (view) view->destroy();
        throw;
    }
}

}  // namespace

core::CoreNode* MaxAdaptorInterface::createMeshNode(core::Owner*, const std::string&, core::CoreNode*,
                                                    const util::CMesh&, NodeListener*) {
    noteUnavailable("createMeshNode");
    return nullptr;
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

void MaxAdaptorInterface::mergeFile(const std::string&, NodeList& result) {
    noteUnavailable("mergeFile");
    guarded("mergeFile", [&] { result.set({}); });
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
