#pragma once

#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

#include "core/AdaptorInterface.h"
#include "samples/mocap_core/Take.h"
#include "util/xml/Element.h"

namespace qvo::zmx::mocap {

/// All takes since the core was attached, those that undo can bring back included. Takes of scenes that were
/// closed stay too: the adaptor may refer to them until the core is detached. What counts for everybody else
/// are the takes that are in the scene now.
class TakeSet {
  public:
    Take& add(std::unique_ptr<Take> take);

    /// Destroys a take that no node refers to.
    void remove(const Take& take);

    /// In order of creation.
    std::vector<Take*> inScene() const;

    /// The latest take of the scene, or null.
    Take* latest() const;
    Take* findByName(const std::string& name) const;

    /// `wanted`, or `wanted` with "-2", "-3", ... where the scene has a take of that name.
    std::string uniqueName(const std::string& wanted) const;

    /// The same for takes that are called `taken`.
    static std::string uniqueName(const std::string& wanted, const std::unordered_set<std::string>& taken);

    /// Names and ids of the takes of the scene.
    std::unordered_set<std::string> names() const;
    std::unordered_set<std::string> ids() const;

    /// Asks the adaptor anew which takes are left.
    void refresh(core::AdaptorInterface& adaptor) const;

    /// Writes the takes of the scene into tags on their nodes. A take that has changed since it was saved
    /// gets a new id, or its older state would not come in from a scene that still holds it. Of takes that
    /// share an id, since one is a copy of the other, the later gets an id of its own.
    void tagNodes(core::AdaptorInterface& adaptor) const;

  private:
    std::vector<std::unique_ptr<Take>> takes_;
};

}  // namespace qvo::zmx::mocap
