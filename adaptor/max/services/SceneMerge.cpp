#include "adaptor/max/services/SceneMerge.h"

#include <unordered_set>

#include "adaptor/max/Host.h"
#include "adaptor/max/nodes/CMAXNode.h"
#include "util/Log.h"

namespace qvo::zmx::adaptor::max {

using util::Log;
using util::logLine;
using util::logValue;

namespace {

/// The user's selection, remembered by handle: nodes may go while the merge runs.
class SavedSelection {
  public:
    explicit SavedSelection(Log& log) {
        logLine(log, Log::kNotice, "Gathering currently selected nodes");
        Interface& host = *GetCOREInterface();
        for (int i = 0; i < host.GetSelNodeCount(); ++i) {
            INode* const node = host.GetSelNode(i);
            handles_.push_back(node->GetHandle());
            known_.insert(node->GetHandle());
            logValue(log, Log::kNotice, "gathered node", node->GetName());
        }
    }

    bool contains(INode& node) const { return known_.count(node.GetHandle()) != 0; }

    void restore(Log& log) const {
        logLine(log, Log::kNotice, "Resetting selection set to previous values");
        Interface& host = *GetCOREInterface();
        INodeTab nodes;
        for (const ULONG handle : handles_)
            if (INode* node = host.GetINodeByHandle(handle)) nodes.Append(1, &node);
        host.ClearNodeSelection(FALSE);
        host.SelectNodeTab(nodes, TRUE, TRUE);
    }

  private:
    std::vector<ULONG> handles_;  ///< in order of selection
    std::unordered_set<ULONG> known_;
};

void mergeIntoHost(const std::string& path, Log& log) {
    logLine(log, Log::kNotice, "Merging file...");
    try {
        if (GetCOREInterface()->MergeFromFile(path.c_str(), TRUE, TRUE, TRUE, 0, nullptr, 0, 0)) return;
        logLine(log, Log::kWarning, "Merge failed. The scene could not be merged successfully");
    } catch (...) {
        logLine(log, Log::kWarning, "Merge failed, possible corrupt scene file: ", path);
    }
}

std::vector<std::unique_ptr<CMAXNode>> wrapMergedNodes(const SavedSelection& before, Log& log) {
    logLine(log, Log::kNotice, "Gathering merged nodes");
    Interface& host = *GetCOREInterface();
    std::vector<std::unique_ptr<CMAXNode>> merged;
    merged.reserve(static_cast<std::size_t>(host.GetSelNodeCount()));
    for (int i = 0; i < host.GetSelNodeCount(); ++i) {
        INode* const node = host.GetSelNode(i);
        if (node->IsRootNode() || before.contains(*node)) continue;
        logValue(log, Log::kNotice, "Adding node to list", node->GetName());
        if (INode* const found = host.GetINodeByHandle(node->GetHandle()))
            merged.push_back(std::make_unique<CMAXNode>(nullptr, found));
    }
    return merged;
}

/// Lets an open undo group rest while the host merges: closes the host's hold, and begins one for the rest of
/// the group unless that group has ended by then.
class RestingHold {
  public:
    explicit RestingHold(core::AdaptorInterface& adaptor)
        : adaptor_(adaptor), accepted_(adaptor.isUndoRecording() && theHold.Holding()) {
        char name[] = "tmp";
        if (accepted_) theHold.Accept(name);
        depth_ = theHold.GetBeginDepth();
    }
    ~RestingHold() {
        // Deeper: the group that records now was begun meanwhile, with a hold of its own.
        if (accepted_ && adaptor_.isUndoRecording() && theHold.GetBeginDepth() == depth_) theHold.Begin();
    }
    RestingHold(const RestingHold&) = delete;
    RestingHold& operator=(const RestingHold&) = delete;

  private:
    core::AdaptorInterface& adaptor_;
    const bool accepted_;
    int depth_;
};

}  // namespace

std::vector<std::unique_ptr<CMAXNode>> mergeScene(const std::string& path, core::AdaptorInterface& adaptor) {
    Log log("Merging models from file", Log::kNotice);
    logValue(log, Log::kNotice, "Merge file", path);
    const RestingHold resting(adaptor);
    const SavedSelection before(log);
    logLine(log, Log::kNotice, "Clearing node selection");
    GetCOREInterface()->ClearNodeSelection(FALSE);

    mergeIntoHost(path, log);
    std::vector<std::unique_ptr<CMAXNode>> merged = wrapMergedNodes(before, log);
    before.restore(log);
    return merged;
}

}  // namespace qvo::zmx::adaptor::max
