#include "maxhost/src/scene/Selection.h"

#include <notify.h>

#include <deque>

#include "maxhost/src/references/RecordHold.h"
#include "maxhost/src/scene/Scene.h"

namespace maxhost {

/// Undo record of one change of the selection, as a difference, so that selecting many nodes one by one stays
/// linear.
class SelectionRestore : public RestoreObj {
  public:
    SelectionRestore(Selection& selection, std::vector<Selection::Removed> removed, std::vector<Node*> added)
        : selection_(selection),
          root_(selection.scene_.root()),
          holdRoot_(&root_),
          removed_(std::move(removed)),
          added_(std::move(added)) {
        for (const Selection::Removed& removedNode : removed_) {
            gone_.push_back(removedNode.node);
            holds_.emplace_back(removedNode.node);
        }
        for (Node* node : added_)
            holds_.emplace_back(node);
    }

    void Restore(int /*isUndo*/) override {
        if (!root_.inScene()) return;  // the scene is gone, and the selection with it
        selection_.takeOut(added_);
        selection_.putBack(removed_);
        selection_.tell();
    }
    void Redo() override {
        if (!root_.inScene()) return;
        selection_.takeOut(gone_);
        selection_.append(added_);
        selection_.tell();
    }
    TSTR Description() override { return TSTR(_T("Selection")); }

  private:
    Selection& selection_;
    Node& root_;
    RecordHold holdRoot_;
    std::deque<RecordHold> holds_;
    std::vector<Selection::Removed> removed_;
    std::vector<Node*> gone_;
    std::vector<Node*> added_;
};

bool Selection::canSelect(const Node* node) const {
    return node != nullptr && node->inScene() && !node->isRoot() && !node->selected_ &&
           &node->scene_ == &scene_;
}

std::vector<Selection::Removed> Selection::takeOut(const std::vector<Node*>& leaving) {
    std::vector<Removed> removed;
    if (leaving.size() == 1 && leaving[0] != nullptr && !leaving[0]->selected_) return removed;
    for (Node* node : leaving)
        if (node != nullptr && &node->scene() == &scene_ && node->selected_) node->selected_ = false;
    size_t kept = 0;
    for (size_t i = 0; i < nodes_.size(); ++i) {
        if (nodes_[i]->selected_)
            nodes_[kept++] = nodes_[i];
        else
            removed.push_back({i, nodes_[i]});
    }
    nodes_.resize(kept);
    return removed;
}

std::vector<Node*> Selection::append(const std::vector<Node*>& coming) {
    std::vector<Node*> added;
    for (Node* node : coming) {
        if (!canSelect(node)) continue;
        node->selected_ = true;
        nodes_.push_back(node);
        added.push_back(node);
    }
    return added;
}

void Selection::putBack(const std::vector<Removed>& removed) {
    std::vector<Node*> merged;
    merged.reserve(nodes_.size() + removed.size());
    size_t next = 0;
    for (const Removed& entry : removed) {
        if (!canSelect(entry.node)) continue;
        while (merged.size() < entry.index && next < nodes_.size())
            merged.push_back(nodes_[next++]);
        entry.node->selected_ = true;
        merged.push_back(entry.node);
    }
    merged.insert(merged.end(), nodes_.begin() + static_cast<std::ptrdiff_t>(next), nodes_.end());
    nodes_ = std::move(merged);
}

void Selection::replace(const std::vector<Node*>& leaving, const std::vector<Node*>& coming) {
    const std::vector<Node*> leavingNodes = leaving;  // may be our own list
    std::vector<Removed> removed;
    if (!leavingNodes.empty()) removed = takeOut(leavingNodes);
    std::vector<Node*> added = append(coming);
    if (removed.empty() && added.empty()) return;
    if (theHold.Holding()) theHold.Put(new SelectionRestore(*this, std::move(removed), std::move(added)));
    tell();
}

void Selection::tell() {
    BroadcastNotification(NOTIFY_SELECTIONSET_CHANGED);
    if (scene_.observer() != nullptr) scene_.observer()->selectionChanged();
}

void Selection::drop() {
    for (Node* node : nodes_)
        node->selected_ = false;
    nodes_.clear();
}

}  // namespace maxhost
