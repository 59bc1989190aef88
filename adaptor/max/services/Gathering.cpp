#include "adaptor/max/services/Gathering.h"

#include "adaptor/max/Boundary.h"
#include "adaptor/max/services/MasterNodes.h"
#include "adaptor/max/services/NodeTag.h"
#include "adaptor/max/services/SceneWalk.h"
#include "util/Log.h"

namespace qvo::zmx::adaptor::max {

using util::Log;
using util::logLine;
using util::xml::Element;

namespace {

/// Reads one node's tag: its components go into `masterNodes`, its names into `records`.
void readTag(INode& node, MasterNodes& masterNodes, GatherRecords& records) {
    const auto text = readTagText(node);
    if (!text) return;
    Element tag;
    if (tag.parse(*text) == Element::kParsed)
        masterNodes.takeFrom(tag, node.GetName());
    else
        logLine(Log::kWarning, "The tag of node ", node.GetName(), " is damaged (", text->size(),
                " characters)");
    const bool empty = tag.value.empty() && tag.children.empty() && tag.attributes.empty();
    if (!empty) records.add(node, tag);
}

/// One run: the flag is set, and the records are empty again on every way out.
class Running {
  public:
    Running(bool& flag, GatherRecords& records) : flag_(flag), records_(records) {
        flag_ = true;
        records_.clear();
    }
    ~Running() {
        records_.clear();
        flag_ = false;
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

  private:
    bool& flag_;
    GatherRecords& records_;
};

}  // namespace

void Gathering::run(core::CoreObject& core, const NodeRegistry& nodes) {
    if (running_) {
        logLine(Log::kWarning, "A gathering is running already");
        return;
    }
    const Running running(running_, records_);
    MasterNodes masterNodes;
    forEachSceneNode([&](INode& node) { readTag(node, masterNodes, records_); });
    Element root = masterNodes.buildTree();
    guarded("CoreObject::loadState", [&] { core.loadState(root); });
    // The core has the states from here on: a failed report must not leave the tags to a second gathering.
    guarded("reportUnclaimed", [&] { reportUnclaimed(nodes); });
    wipeTags();
}

void Gathering::reportUnclaimed(const NodeRegistry& nodes) const {
    std::string names;
    for (const GatherRecord& record : records_.inOrder()) {
        INode* const node = record.node();
        if (!node || nodes.findByHandle(record.handle)) continue;
        logLine(Log::kWarning, "Node ", node->GetName(), " was not claimed; its tag had ",
                readTagText(*node).value_or("").size(), " characters");
        names.append(node->GetName()).append("\n");
    }
    if (names.empty()) return;
    const std::string text =
        "Some nodes were found beloning to Zorva Kestrel Studio, but they were never claimed. \n "
        "The following nodes were left out:\n\n" +
        names;
    MessageBoxA(nullptr, text.c_str(), "Gather error", MB_OK | MB_ICONERROR);
}

void Gathering::wipeTags() const {
    for (const GatherRecord& record : records_.inOrder())
        if (INode* const node = record.node()) wipeTag(*node);
}

}  // namespace qvo::zmx::adaptor::max
