#include "maxhost/src/scene/SceneMerge.h"

#include <hold.h>
#include <notify.h>

namespace maxhost {

std::vector<Node*> SceneMerge::run(Scene& from, Scene& into) {
    const HoldSuspend unrecorded;
    SceneMerge merge(into);
    std::vector<Node*> targets;
    for (Node* source : from.nodesInOrder())
        targets.push_back(&merge.bring(*source));
    for (Node* target : targets)
        BroadcastNotification(NOTIFY_SCENE_ADDED_NODE, static_cast<INode*>(target));
    return targets;
}

Node& SceneMerge::parentFor(Node& source) const {
    const auto found = brought_.find(source.parent());
    return found == brought_.end() ? into_.root() : *found->second;
}

Node& SceneMerge::bring(Node& source) {
    Node& target = into_.createNode(source.name(), parentFor(source));
    brought_[&source] = &target;
    target.applyFlags(source.flags());
    target.applyWireColor(source.GetWireColor());
    target.applyUserProperties(source.userProperties());
    target.SetTMController(source.GetTMController());
    target.SetObjectRef(source.GetObjectRef());
    target.TransferReferences(&source);
    return target;
}

}  // namespace maxhost
