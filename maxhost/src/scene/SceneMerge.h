#pragma once

#include <max.h>

#include <unordered_map>
#include <vector>

#include "maxhost/src/scene/Scene.h"

namespace maxhost {

/// Brings nodes of one scene into another, where they get new handles and keep their hierarchy among
/// themselves and their local values. Nothing is recorded. Linear in the nodes.
class SceneMerge {
  public:
    struct Rules {
        /// MERGE_DUPS_SKIP leaves nodes out whose name the scene has, _DELOLD deletes the scene's nodes of
        /// the name, _RENAME gives the merged ones new names. Anything else keeps both.
        int duplicates = MERGE_DUPS_PROMPT;
        /// MERGE_REPARENT_ALWAYS: a node that comes without its parent goes below the scene's node of the
        /// parent's name, if there is one. Otherwise it goes below the root.
        int reparent = MERGE_REPARENT_PROMPT;
        /// Names of the nodes wanted; null for all.
        const NameTab* names = nullptr;
    };

    /// Returns the new nodes in scene order, each announced by NOTIFY_SCENE_ADDED_NODE once all are there.
    /// `from` has lost its objects to them and is only fit to be destroyed.
    static std::vector<Node*> run(Scene& from, Scene& into, const Rules& rules, TimeValue t);

  private:
    SceneMerge(Scene& into, const Rules& rules) : into_(into), rules_(rules) {}

    bool isWanted(Node& source) const;
    Node& parentFor(Node& source) const;
    Node& bring(Node& source);

    Scene& into_;
    const Rules& rules_;
    std::unordered_map<Node*, Node*> brought_;
};

}  // namespace maxhost
