#include "maxhost/src/host/NodeCommands.h"

#include <hold.h>
#include <notify.h>

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace maxhost {

namespace {

/// Wire colours in order of creation, so that the same session gives the same colours.
constexpr DWORD kWireColors[] = {0x00e0a030, 0x003078e0, 0x0040c060, 0x00c050b0, 0x0030c8d8, 0x00b0b040};
constexpr DWORD kWireColorCount = sizeof kWireColors / sizeof kWireColors[0];

std::string objectBaseName(Object* object) {
    if (object == nullptr) return "Node";
    TSTR base;
    object->InitNodeName(base);
    return base.isNull() ? "Object" : base.data();
}

}  // namespace

Node& NodeCommands::create(Object* object, const TCHAR* name) {
    const bool named = name != nullptr && *name != '\0';
    Node& node = scene_.createNode(named ? std::string(name) : scene_.uniqueName(objectBaseName(object)),
                                   scene_.root());
    node.applyWireColor(kWireColors[node.GetHandle() % kWireColorCount]);
    node.SetTMController(NewDefaultMatrix3Controller());
    node.SetObjectRef(object);
    BroadcastNotification(NOTIFY_SCENE_ADDED_NODE, static_cast<INode*>(&node));
    return node;
}

std::vector<Node*> NodeCommands::withDescendants(const std::vector<Node*>& listed) const {
    std::vector<Node*> all = listed;
    std::unordered_set<Node*> known(listed.begin(), listed.end());
    for (Node* top : listed) {
        std::vector<Node*> pending(top->children().rbegin(), top->children().rend());
        while (!pending.empty()) {
            Node* const node = pending.back();
            pending.pop_back();
            // Below a node that is listed itself its own turn takes over.
            if (!known.insert(node).second) continue;
            all.push_back(node);
            pending.insert(pending.end(), node->children().rbegin(), node->children().rend());
        }
    }
    return all;
}

Node& NodeCommands::cloneOne(Node& source, Node& parent, RemapDir& remap, CloneType type) {
    Node& target = scene_.createNode(scene_.uniqueName(Scene::withoutNumber(source.name())), parent);
    target.applyWireColor(source.GetWireColor());
    target.applyFlags(source.flags());
    target.applyUserProperties(source.userProperties());
    target.BaseClone(&source, &target, remap);
    const auto copied = [&](ReferenceTarget* original) {
        if (type != NODE_COPY) return original;
        ReferenceTarget* const copy = remap.CloneRef(original);
        return copy == nullptr ? original : copy;
    };
    target.SetTMController(static_cast<Control*>(copied(source.GetTMController())));
    target.SetObjectRef(static_cast<Object*>(copied(source.GetObjectRef())));
    return target;
}

std::vector<NodeCommands::Pair> NodeCommands::clone(const std::vector<Node*>& listed, const Point3& offset,
                                                    bool expandHierarchies, CloneType type) {
    std::vector<Node*> tops;
    std::unordered_set<Node*> seen;
    for (Node* node : listed)
        if (node != nullptr && !node->isRoot() && node->inScene() && seen.insert(node).second)
            tops.push_back(node);

    std::vector<Pair> pairs;
    std::unordered_map<Node*, Node*> cloneOf;
    DefaultRemapDir remap;
    for (Node* source : expandHierarchies ? withDescendants(tops) : tops) {
        const auto parentClone = cloneOf.find(source->parent());
        Node& parent = parentClone == cloneOf.end() ? *source->parent() : *parentClone->second;
        pairs.push_back({source, &cloneOne(*source, parent, remap, type)});
        cloneOf[source] = pairs.back().target;
    }
    const TimeValue t = GetCOREInterface()->GetTime();
    for (const Pair& pair : pairs) {
        // A child may have been listed, and so cloned, before its parent.
        const auto parentClone = cloneOf.find(pair.source->parent());
        if (parentClone != cloneOf.end()) {
            parentClone->second->AttachChild(pair.target, 0);
        } else if (offset != Point3(0, 0, 0)) {
            Matrix3 tm = pair.target->GetNodeTM(t);
            tm.Translate(offset);
            pair.target->SetNodeTM(t, tm);
        }
        BroadcastNotification(NOTIFY_SCENE_ADDED_NODE, static_cast<INode*>(pair.target));
    }
    return pairs;
}

bool NodeCommands::deleteSelection(TimeValue t) {
    if (scene_.selection().nodes().empty()) return false;
    INodeTab list;
    std::vector<ULONG> handles;
    for (Node* node : scene_.selection().nodes()) {
        INode* listed = node;
        list.Append(1, &listed);
        handles.push_back(node->GetHandle());
    }
    const std::unordered_set<ULONG> doomed(handles.begin(), handles.end());
    theHold.Begin();
    BroadcastNotification(NOTIFY_SEL_NODES_PRE_DELETE, static_cast<Tab<INode*>*>(&list));
    scene_.selection().clear();
    // Looked up by handle: handlers may have deleted some. Children that stay go first, while all is in
    // place.
    for (const ULONG handle : handles) {
        Node* const node = scene_.findByHandle(handle);
        const std::vector<Node*> children = node == nullptr ? std::vector<Node*>() : node->children().copy();
        for (Node* child : children)
            if (doomed.count(child->GetHandle()) == 0) child->Detach(t, 1);
    }
    for (const ULONG handle : handles)
        if (Node* const node = scene_.findByHandle(handle)) scene_.deleteNode(*node, t, false);
    BroadcastNotification(NOTIFY_SEL_NODES_POST_DELETE, static_cast<Tab<INode*>*>(&list));
    TCHAR name[] = _T("Delete");
    theHold.Accept(name);
    return true;
}

}  // namespace maxhost
