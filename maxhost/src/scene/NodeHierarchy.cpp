#include <notify.h>

#include <algorithm>

#include "maxhost/src/scene/Node.h"
#include "maxhost/src/scene/NodeLinkRestore.h"
#include "maxhost/src/scene/Scene.h"

namespace maxhost {

INode* Node::GetChildNode(int i) {
    return i < 0 || i >= NumberOfChildren() ? nullptr : children_[i];
}

bool Node::isAncestorOrSelf(const Node& node) const {
    if (children_.empty()) return this == &node;
    for (const Node* at = &node; at != nullptr; at = at->parent_)
        if (at == this) return true;
    return false;
}

int Node::childIndex(Node& child) {
    return child.lastIndex_ = children_.find(&child, child.lastIndex_);
}

Node::Link Node::link() {
    return parent_ == nullptr ? Link() : Link{parent_, parent_->childIndex(*this)};
}

void Node::applyLink(const Link& link) {
    invalidateTransforms();
    if (parent_ != nullptr) parent_->children_.erase(parent_->childIndex(*this));
    parent_ = link.parent;
    if (parent_ == nullptr) return;
    lastIndex_ = std::clamp(link.index, 0, parent_->children_.size());
    parent_->children_.insert(lastIndex_, this);
}

void Node::AttachChild(INode* node, int keepPos) {
    Node* const child = Scene::hostNode(node);
    if (child == nullptr || child->isRoot() || !child->inScene_ || !inScene_) return;
    if (child->parent_ == this || child->isAncestorOrSelf(*this)) return;
    child->moveTo(*this, GetCOREInterface()->GetTime(), keepPos != 0);
}

void Node::Detach(TimeValue t, int keepPos) {
    if (isRoot() || !inScene_ || parent_ == &scene_.root()) return;
    moveTo(scene_.root(), t, keepPos != 0);
}

void Node::moveTo(Node& newParent, TimeValue t, bool keepPlace) {
    const Link before = link();
    const Link after{&newParent, newParent.NumberOfChildren()};
    Matrix3 tm(1);
    bool placed = true;
    if (keepPlace) {
        tm = GetNodeTM(t);
        placed = control_ == nullptr ||
                 control_->ChangeParents(t, before.parent->GetNodeTM(t), newParent.GetNodeTM(t), tm) != FALSE;
    }
    if (!before.parent->isRoot()) BroadcastNotification(NOTIFY_NODE_UNLINKED, static_cast<INode*>(this));
    if (theHold.Holding()) theHold.Put(new NodeLinkRestore(*this, before, after));
    applyLink(after);
    if (!placed) SetNodeTM(t, tm);
    if (!newParent.isRoot()) BroadcastNotification(NOTIFY_NODE_LINKED, static_cast<INode*>(this));
}

void Node::Delete(TimeValue t, int keepChildPos) {
    if (inScene_ && !isRoot()) scene_.deleteNode(*this, t, keepChildPos != 0);
}

}  // namespace maxhost
