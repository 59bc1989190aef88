#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "core/AdaptorInterface.h"
#include "core/NodeListener.h"
#include "core/Owner.h"
#include "samples/mocap_core/state/TakeRecord.h"
#include "samples/mocap_core/state/TakeState.h"

namespace qvo::zmx::mocap {

/// A take in the scene: the owner of the nodes that were made for it, and their listener, so that it knows
/// which of them undo, redo and the user have left in the scene. The adaptor refers to it as long as the core
/// is attached.
class Take : public core::Owner, public NodeListener {
  public:
    explicit Take(TakeRecord record) : record_(std::move(record)) {}

    /// The take's name; while its nodes are being tagged its id, since two scenes that are merged may each
    /// have a take of this name.
    const std::string& getName() override { return tagging_ ? record_.id : record_.name; }  // owner, slot 0
    void writeState(util::xml::Element& masternodes) override;                              // owner, slot 1
    void removed(core::CoreNode* node) override;   // listener, slot 1
    void restored(core::CoreNode* node) override;  // listener, slot 2

    const TakeRecord& record() const { return record_; }
    /// All but the id, which stands for what was saved and so is no part of any change.
    void setRecord(TakeRecord record);

    /// What the scene keeps of the take.
    TakeState state() const;

    /// Scene files know this state by the take's id.
    void noteSaved(const TakeState& state) { saved_ = state.text(); }

    /// A new id, under which nothing was saved yet.
    void renewId();

    /// True when scene files know another state than the present one by the take's id.
    bool hasChangedSinceSaved() const { return !saved_.empty() && saved_ != state().text(); }

    /// `node` stands for `name` from now on, and tells the take when it leaves the scene.
    void addNode(const std::string& name, core::CoreNode& node);

    /// The node called `name` that is part of the scene, or null.
    core::CoreNode* node(const std::string& name) const;

    /// True when any joint is part of the scene. A prop or camera alone makes no take.
    bool isInScene() const;

    /// Asks the adaptor anew which nodes are left, after something that no listener is told.
    void refresh(core::AdaptorInterface& adaptor);

    /// Writes the take into tags on its nodes, from which it comes back after the scene was read again.
    /// Scene files know the present state by the take's id from then on.
    void tagNodes(core::AdaptorInterface& adaptor);

  private:
    struct Known {
        std::string name;
        bool present;
    };

    TakeRecord record_;
    std::string saved_;  // the text of the state that scene files know by the id; empty for none
    std::unordered_map<core::CoreNode*, Known> known_;  // by identity only: a removed wrapper may be gone
    /// One name may stand for several: a deleted node that undo can bring back, and the one made in its
    /// place.
    std::unordered_multimap<std::string, core::CoreNode*> byName_;
    bool tagging_ = false;
};

}  // namespace qvo::zmx::mocap
