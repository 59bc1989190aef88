#pragma once

#include <vector>

#include "maxhost/src/scene/Scene.h"

namespace maxhost {

/// Grouping of nodes: a head node stands for the group, the members hang below it and keep their places.
/// Simplified: groups do not open and close, and membership is a mark of the node, which it keeps until the
/// group is dissolved, even when its head is deleted or its link changes.
class GroupCommand {
  public:
    explicit GroupCommand(Scene& scene) : scene_(scene) {}

    /// Makes the nodes members of a new group as one undo entry "Group": its head, a point helper in the
    /// middle of them, takes over those that hang below no other one of them. The head gets their parent if
    /// that is the same for all, else the root. An empty name gives "Group" and a number. Null for no nodes
    /// at all. Linear in the nodes of the scene.
    Node* group(const std::vector<Node*>& nodes, const std::string& name, TimeValue t);

    /// Dissolves a group as one undo entry "Ungroup": what hangs below the head goes to the head's parent,
    /// and the head goes. Groups among the members stay. False for a node that is no head.
    bool ungroup(Node& head, TimeValue t);

  private:
    std::vector<Node*> topmost(const std::vector<Node*>& nodes) const;
    Node& createHead(const std::vector<Node*>& tops, const std::string& name, TimeValue t);
    void clearMembers(Node& head);

    Scene& scene_;
};

}  // namespace maxhost
