#pragma once

#include <max.h>

#include <unordered_map>
#include <vector>

#include "maxhost/src/scene/Scene.h"

namespace maxhost {

/// Brings nodes of one scene into another, where they get new handles and keep their hierarchy among
/// themselves and their local values. Nodes of the same name stay beside each other. Nothing is recorded.
/// Linear in the nodes.
class SceneMerge {
  public:
    /// Returns the new nodes in scene order, each announced by NOTIFY_SCENE_ADDED_NODE once all are there.
    /// `from` has lost its objects to them and is only fit to be destroyed.
    static std::vector<Node*> run(Scene& from, Scene& into);

  private:
    explicit SceneMerge(Scene& into) : into_(into) {}

    Node& parentFor(Node& source) const;
    Node& bring(Node& source);

    Scene& into_;
    std::unordered_map<Node*, Node*> brought_;
};

}  // namespace maxhost
