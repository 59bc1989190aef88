#include "maxhost/src/scene/SceneMerge.h"

#include <hold.h>
#include <notify.h>

#include "maxhost/src/references/AnimatableAccess.h"

namespace maxhost {

std::vector<Node*> SceneMerge::run(Scene& from, Scene& into, const Rules& rules, TimeValue t) {
    const HoldSuspend unrecorded;
    SceneMerge merge(into, rules);
    std::vector<Node*> sources;
    for (Node* source : from.nodesInOrder())
        if (merge.isWanted(*source)) sources.push_back(source);

    if (rules.duplicates == MERGE_DUPS_DELOLD) {
        for (Node* source : sources)
            while (Node* const old = into.findByName(source->name()))
                into.deleteNode(*old, t, true);
    }
    std::vector<Node*> targets;
    for (Node* source : sources)
        targets.push_back(&merge.bring(*source));
    for (Node* target : targets)
        BroadcastNotification(NOTIFY_SCENE_ADDED_NODE, static_cast<INode*>(target));
    return targets;
}

bool SceneMerge::isWanted(Node& source) const {
    if (rules_.names != nullptr && rules_.names->FindName(source.GetName()) < 0) return false;
    return rules_.duplicates != MERGE_DUPS_SKIP || into_.findByName(source.name()) == nullptr;
}

Node& SceneMerge::parentFor(Node& source) const {
    Node* const parent = source.parent();
    const auto found = brought_.find(parent);
    if (found != brought_.end()) return *found->second;
    Node* namesake = nullptr;
    if (!parent->isRoot() && rules_.reparent == MERGE_REPARENT_ALWAYS)
        namesake = into_.findByName(parent->name());
    return namesake == nullptr ? into_.root() : *namesake;
}

Node& SceneMerge::bring(Node& source) {
    const bool rename = rules_.duplicates == MERGE_DUPS_RENAME && into_.findByName(source.name()) != nullptr;
    const std::string name = rename ? into_.uniqueName(Scene::withoutNumber(source.name())) : source.name();
    Node& target = into_.createNode(name, parentFor(source));
    brought_[&source] = &target;
    target.applyFlags(source.flags());
    target.applyWireColor(source.GetWireColor());
    target.applyUserProperties(source.userProperties());
    AnimatableAccess::copyAppData(source, target);
    target.SetTMController(source.GetTMController());
    target.SetObjectRef(source.GetObjectRef());
    target.TransferReferences(&source);
    return target;
}

}  // namespace maxhost
