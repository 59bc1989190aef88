#include "maxhost/src/host/GroupCommand.h"

#include <hold.h>

#include <algorithm>
#include <unordered_set>

#include "maxhost/src/host/NodeCommands.h"
#include "maxhost/src/objects/PointObject.h"

namespace maxhost {

std::vector<Node*> GroupCommand::topmost(const std::vector<Node*>& nodes) const {
    const std::unordered_set<Node*> listed(nodes.begin(), nodes.end());
    std::unordered_set<Node*> covered;
    std::vector<Node*> tops;
    for (Node* const node : scene_.nodesInOrder()) {
        const bool below = covered.count(node->parent()) != 0, own = listed.count(node) != 0;
        if (below || own) covered.insert(node);
        if (own && !below) tops.push_back(node);
    }
    return tops;
}

Node& GroupCommand::createHead(const std::vector<Node*>& tops, const std::string& name, TimeValue t) {
    Box3 places;
    for (Node* const top : tops)
        places += top->GetNodeTM(t).GetTrans();
    const std::string given = name.empty() ? scene_.uniqueName("Group") : name;
    Node& head = NodeCommands(scene_).create(new PointObject, given.c_str());
    Matrix3 tm = TransMatrix(places.Center());
    head.SetNodeTM(t, tm);
    Node* const parent = tops.front()->parent();
    if (std::all_of(tops.begin(), tops.end(), [&](Node* top) { return top->parent() == parent; }))
        parent->AttachChild(&head, 1);
    head.setFlag(Node::kGroupHead, true);
    return head;
}

Node* GroupCommand::group(const std::vector<Node*>& nodes, const std::string& name, TimeValue t) {
    const std::vector<Node*> tops = topmost(nodes);
    if (tops.empty()) return nullptr;
    theHold.Begin();
    Node& head = createHead(tops, name, t);
    for (Node* const top : tops)
        head.AttachChild(top, 1);
    for (Node* const node : nodes)
        if (node != nullptr && node->inScene()) node->setFlag(Node::kGroupMember, true);
    TCHAR entry[] = _T("Group");
    theHold.Accept(entry);
    return &head;
}

void GroupCommand::clearMembers(Node& head) {
    std::vector<Node*> open{&head};
    while (!open.empty()) {
        Node* const node = open.back();
        open.pop_back();
        if (node != &head) {
            node->setFlag(Node::kGroupMember, false);
            if (node->has(Node::kGroupHead)) continue;  // a group of its own
        }
        for (int i = 0; i < node->NumberOfChildren(); ++i)
            open.push_back(Scene::hostNode(node->GetChildNode(i)));
    }
}

bool GroupCommand::ungroup(Node& head, TimeValue t) {
    if (!head.inScene() || !head.has(Node::kGroupHead)) return false;
    theHold.Begin();
    // Members of a group inside a group are the outer group's from now on.
    if (!head.has(Node::kGroupMember)) clearMembers(head);
    while (head.NumberOfChildren() > 0)
        head.parent()->AttachChild(head.GetChildNode(0), 1);
    scene_.deleteNode(head, t, true);
    TCHAR entry[] = _T("Ungroup");
    theHold.Accept(entry);
    return true;
}

}  // namespace maxhost
