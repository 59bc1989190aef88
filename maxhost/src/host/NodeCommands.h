#pragma once

#include <max.h>

#include <string>
#include <vector>

#include "maxhost/src/scene/Scene.h"

namespace maxhost {

/// What the host does with nodes on request. All of it is recorded while holding.
class NodeCommands {
  public:
    explicit NodeCommands(Scene& scene) : scene_(scene) {}

    /// A visible, unselected child of the root with a default transform controller, for an object that may be
    /// null. Without a name it gets one from the object. Sends NOTIFY_NODE_CREATED and
    /// NOTIFY_SCENE_ADDED_NODE.
    Node& create(Object* object, const TCHAR* name);
    /// Linear in the nodes cloned. A clone keeps the parent of its original unless that was cloned too;
    /// `offset` moves the topmost ones. The originals of the result come first as listed (repeated ones
    /// once), then the others in scene order. NODE_COPY clones object and controllers, what its class cannot
    /// clone is shared; the other two types share them. Simplified: NODE_REFERENCE is NODE_INSTANCE.
    struct Pair {
        Node* source;
        Node* target;
    };
    std::vector<Pair> clone(const std::vector<Node*>& listed, const Point3& offset, bool expandHierarchies,
                            CloneType type);
    /// The user's command: deletes the selected nodes as one undo entry "Delete", with the notices 70, per
    /// node 68 and 69, and 71. Children that are not selected stay where they are. False when nothing is
    /// selected.
    bool deleteSelection(TimeValue t);

  private:
    std::vector<Node*> withDescendants(const std::vector<Node*>& listed) const;
    Node& cloneOne(Node& source, Node& parent, RemapDir& remap, CloneType type);

    Scene& scene_;
};

}  // namespace maxhost
