#include "maxhost/src/scene/Node.h"

namespace maxhost {

Matrix3 Node::GetNodeTM(TimeValue t, Interval* valid) {
    if (isRoot()) return Matrix3(1);
    // Upwards to the first ancestor whose transform is known, then down again.
    std::vector<Node*> unknown;
    Node* known = this;
    while (!known->isRoot() && !known->worldValid_.InInterval(t)) {
        unknown.push_back(known);
        if (known->parent_ == nullptr) break;
        known = known->parent_;
    }
    Matrix3 parentTM(1);
    Interval parentValid = FOREVER;
    const bool startsBelowKnown = unknown.empty() || unknown.back() != known;
    if (startsBelowKnown && !known->isRoot()) {
        parentTM = known->worldTM_;
        parentValid = known->worldValid_;
    }
    for (auto node = unknown.rbegin(); node != unknown.rend(); ++node) {
        (*node)->evaluateTransform(t, parentTM, parentValid);
        parentTM = (*node)->worldTM_;
        parentValid = (*node)->worldValid_;
    }
    if (valid != nullptr) *valid &= worldValid_;
    return worldTM_;
}

void Node::evaluateTransform(TimeValue t, const Matrix3& parentTM, const Interval& parentValid) {
    Matrix3 tm = parentTM;
    Interval valid = parentValid;
    if (control_ != nullptr) control_->GetValue(t, &tm, valid, CTRL_RELATIVE);
    // A controller that names no validity has answered for this one instant.
    if (!valid.InInterval(t)) valid.SetInstant(t);
    worldTM_ = tm;
    worldValid_ = valid;
}

void Node::invalidateTransforms() {
    std::vector<Node*> pending{this};
    while (!pending.empty()) {
        Node* const node = pending.back();
        pending.pop_back();
        if (node->worldValid_.Empty()) continue;
        node->worldValid_.SetEmpty();
        pending.insert(pending.end(), node->children_.begin(), node->children_.end());
    }
}

Matrix3 Node::GetParentTM(TimeValue t) {
    return parent_ == nullptr ? Matrix3(1) : parent_->GetNodeTM(t);
}

void Node::SetNodeTM(TimeValue t, Matrix3& tm) {
    if (control_ == nullptr) return;
    SetXFormPacket packet(tm, GetParentTM(t));
    control_->SetValue(t, &packet, 1, CTRL_ABSOLUTE);
}

}  // namespace maxhost
