#include "adaptor/max/services/Boundary.h"
#include "adaptor/max/services/MaxAdaptorInterface.h"
#include "util/Log.h"

/// The operations on meshes, tags, other scene files and options.
namespace qvo::zmx::adaptor::max {
namespace {

/// What the adaptor cannot do is answered with the operation's failure value and noted in the log.
void noteUnavailable(const char* operation) {
    util::logLine(util::Log::kWarning, "This version of the adaptor does not offer ", operation);
}

}  // namespace

core::CoreNode* MaxAdaptorInterface::createMeshNode(core::Owner*, const std::string&, core::CoreNode*,
                                                    const util::CMesh&, NodeListener*) {
    noteUnavailable("createMeshNode");
    return nullptr;
}

void MaxAdaptorInterface::tagOwnedNodes(core::Owner*) {
    noteUnavailable("tagOwnedNodes");
}

void MaxAdaptorInterface::gatherNodes() {
    noteUnavailable("gatherNodes");
}

void MaxAdaptorInterface::lookupNode(const std::string&, const util::xml::Element&, NodeList& result) {
    noteUnavailable("lookupNode");
    guarded("lookupNode", [&] { result.set({}); });
}

void MaxAdaptorInterface::mergeFile(const std::string&, NodeList& result) {
    noteUnavailable("mergeFile");
    guarded("mergeFile", [&] { result.set({}); });
}

void MaxAdaptorInterface::bindAdaptorOptions(core::OptionGroup*) {
    noteUnavailable("bindAdaptorOptions");
}

}  // namespace qvo::zmx::adaptor::max
