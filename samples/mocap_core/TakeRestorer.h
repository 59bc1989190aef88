#pragma once

#include <cstddef>
#include <string>
#include <unordered_set>
#include <vector>

#include "core/AdaptorInterface.h"
#include "samples/mocap_core/SceneGrid.h"
#include "samples/mocap_core/TakeSet.h"
#include "samples/mocap_core/state/TakeState.h"
#include "util/xml/Element.h"

namespace qvo::zmx::mocap {

/// Brings takes back from what the adaptor has gathered in the scene: makes them anew and takes their nodes
/// back.
///
/// An id stands for one state of a take. When a gathered take and one that the scene has already are equal in
/// it, the nodes decide. All of them are wrapped already: the take itself was gathered, because it had been
/// saved before, and nothing happens. Some are free: they came beside it, from a scene that holds the same
/// take and was merged, so they are another take, which gets an id of its own at the next save. Takes of
/// different ids are different takes whatever they are called. A take that comes under a name in use gets
/// another name, and so do its nodes.
class TakeRestorer {
  public:
    TakeRestorer(core::AdaptorInterface& adaptor, TakeSet& takes, SceneGrid& grid)
        : adaptor_(adaptor), takes_(takes), grid_(grid), ids_(takes.ids()), names_(takes.names()) {}

    /// `root`: its children are the gathered tools. What is damaged, foreign or without nodes is named in the
    /// log; the rest comes back. Linear in the takes and their nodes.
    void restore(const util::xml::Element& root);

  private:
    struct Claims {
        std::size_t claimed = 0;
        std::vector<std::string> missing;
    };

    void restoreTake(TakeState state);
    Claims claimNodes(Take& take, const TakeState& state);
    std::vector<core::CoreNode*> lookUp(const TakeState& state, const std::vector<std::string>& names);

    core::AdaptorInterface& adaptor_;
    TakeSet& takes_;
    SceneGrid& grid_;
    std::unordered_set<std::string> ids_;    // of the takes that the scene has
    std::unordered_set<std::string> names_;  // of the same
};

}  // namespace qvo::zmx::mocap
