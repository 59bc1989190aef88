#pragma once

#include <string>
#include <unordered_set>

#include "core/NodeListener.h"
#include "core/Owner.h"
#include "samples/mocap_core/ClipRecord.h"

namespace qvo::zmx::mocap {

/// A clip in the scene: the owner of the nodes that were made for it, and their listener, so that it knows
/// which of them undo, redo and the user have left in the scene. The adaptor refers to it as long as the core
/// is attached.
class Take : public core::Owner, public NodeListener {
  public:
    explicit Take(ClipRecord record) : record_(record) {}

    const std::string& getName() override { return record_.name; }  // owner, slot 0
    void writeState(util::xml::Element& masternodes) override;      // owner, slot 1
    void removed(core::CoreNode* node) override;                    // listener, slot 1
    void restored(core::CoreNode* node) override;                   // listener, slot 2

    void addNode(core::CoreNode* node) { present_.insert(node); }
    bool isInScene() const { return !present_.empty(); }
    const ClipRecord& record() const { return record_; }

  private:
    ClipRecord record_;
    std::unordered_set<core::CoreNode*> present_;  // compared by identity only: a removed wrapper may be gone
};

}  // namespace qvo::zmx::mocap
