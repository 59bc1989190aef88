#include "maxhost/src/scene/ScenePlaceRestore.h"

#include <notify.h>

#include "maxhost/src/scene/Scene.h"

namespace maxhost {

RestoreObj* ScenePlaceRestore::ofCreation(Node& node, const Node::Link& link) {
    return new ScenePlaceRestore(node, link, true);
}

RestoreObj* ScenePlaceRestore::ofDeletion(Node& node, const Node::Link& link) {
    return new ScenePlaceRestore(node, link, false);
}

ScenePlaceRestore::ScenePlaceRestore(Node& node, const Node::Link& link, bool created)
    : node_(node), holdNode_(&node), holdParent_(link.parent), link_(link), created_(created) {}

ScenePlaceRestore::~ScenePlaceRestore() {
    if (created_ && !node_.inScene()) node_.DeleteMe();
}

void ScenePlaceRestore::putIn() {
    if (node_.inScene() || node_.TestAFlag(A_IS_DELETED)) return;
    Scene& scene = node_.scene();
    const Node::Link atRootsEnd{&scene.root(), scene.root().NumberOfChildren()};
    scene.enter(node_, link_.parent->inScene() ? link_ : atRootsEnd);
    BroadcastNotification(NOTIFY_SCENE_ADDED_NODE, static_cast<INode*>(&node_));
}

void ScenePlaceRestore::takeOut() {
    if (!node_.inScene()) return;
    BroadcastNotification(NOTIFY_SCENE_PRE_DELETED_NODE, static_cast<INode*>(&node_));
    node_.scene().leave(node_);
    BroadcastNotification(NOTIFY_SCENE_POST_DELETED_NODE);
}

void ScenePlaceRestore::Restore(int /*isUndo*/) {
    if (created_)
        takeOut();
    else
        putIn();
}

void ScenePlaceRestore::Redo() {
    if (created_)
        putIn();
    else
        takeOut();
}

}  // namespace maxhost
