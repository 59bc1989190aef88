#include "maxhost/src/scene/Scene.h"

#include <notify.h>

#include <algorithm>
#include <cstdio>

#include "maxhost/src/scene/ScenePlaceRestore.h"

namespace maxhost {

namespace {

constexpr ULONG kNoHandle = 0xffffffffu;

}  // namespace

bool Scene::ByHandle::operator()(const Node* a, const Node* b) const {
    return a->handle_ < b->handle_;
}

Scene::Scene() {
    root_ = new Node(*this, 0, "Scene Root");  // destroyed in ~Scene
    root_->inScene_ = true;
}

Scene::~Scene() {
    const HoldSuspend unrecorded;
    selection_.drop();
    const std::vector<Node*> nodes = nodesInOrder();
    root_->children_.clear();
    root_->inScene_ = false;
    for (Node* node : nodes) {
        node->inScene_ = false;
        node->parent_ = nullptr;
        node->children_.clear();
    }
    for (Node* node : nodes)
        node->DeleteMe();
    root_->DeleteMe();
}

Node* Scene::findByHandle(ULONG handle) const {
    const auto found = byHandle_.find(handle);
    return found == byHandle_.end() ? nullptr : found->second;
}

Node* Scene::findByName(const std::string& name) const {
    const auto found = byName_.find(name);
    return found == byName_.end() ? nullptr : *found->second.begin();
}

std::string Scene::uniqueName(const std::string& base) {
    int& number = lastNumber_[base];
    std::string name;
    do {
        char digits[16];
        std::snprintf(digits, sizeof digits, "%02d", ++number);
        name = base + digits;
    } while (byName_.count(name) != 0);
    return name;
}

std::string Scene::withoutNumber(const std::string& name) {
    size_t end = name.size();
    while (end > 0 && name[end - 1] >= '0' && name[end - 1] <= '9')
        --end;
    return name.substr(0, end);
}

std::vector<Node*> Scene::nodesInOrder() const {
    std::vector<Node*> nodes;
    nodes.reserve(byHandle_.size());
    std::vector<Node*> pending(root_->children_.rbegin(), root_->children_.rend());
    while (!pending.empty()) {
        Node* const node = pending.back();
        pending.pop_back();
        nodes.push_back(node);
        pending.insert(pending.end(), node->children_.rbegin(), node->children_.rend());
    }
    return nodes;
}

void Scene::noteName(Node& node) {
    byName_[node.name_].insert(&node);
}

void Scene::forgetName(Node& node) {
    const auto found = byName_.find(node.name_);
    if (found == byName_.end()) return;
    found->second.erase(&node);
    if (found->second.empty()) byName_.erase(found);
}

void Scene::enter(Node& node, const Node::Link& link) {
    node.inScene_ = true;
    byHandle_[node.handle_] = &node;
    noteName(node);
    node.applyLink(link);
}

void Scene::leave(Node& node) {
    // Children that came in unrecorded ways stay in the scene.
    while (!node.children_.empty())
        node.children_[0]->applyLink({root_, root_->NumberOfChildren()});
    forgetName(node);
    byHandle_.erase(node.handle_);
    node.applyLink(Node::Link());
    node.inScene_ = false;
}

Node& Scene::createNode(const std::string& name, Node& parent) {
    // Handles may run around once; 0 and the last number are none.
    while (nextHandle_ == 0 || nextHandle_ == kNoHandle || byHandle_.count(nextHandle_) != 0)
        ++nextHandle_;
    Node* const node = new Node(*this, nextHandle_++, name);  // the scene's from here on
    const Node::Link link{&parent, parent.NumberOfChildren()};
    enter(*node, link);
    if (theHold.Holding()) theHold.Put(ScenePlaceRestore::ofCreation(*node, link));
    BroadcastNotification(NOTIFY_NODE_CREATED, static_cast<INode*>(node));
    return *node;
}

Node* Scene::restoreNode(ULONG handle, const std::string& name, Node& parent) {
    if (handle == 0 || handle == kNoHandle || findByHandle(handle) != nullptr) return nullptr;
    Node* const node = new Node(*this, handle, name);
    enter(*node, {&parent, parent.NumberOfChildren()});
    nextHandle_ = std::max(nextHandle_, handle + 1);
    return node;
}

void Scene::deleteNode(Node& node, TimeValue t, bool keepChildTM) {
    BroadcastNotification(NOTIFY_SCENE_PRE_DELETED_NODE, static_cast<INode*>(&node));
    if (!node.inScene_) return;  // a handler was faster
    selection_.remove({&node});
    const std::vector<Node*> children = node.children_.copy();
    for (Node* child : children)
        child->Detach(t, keepChildTM ? 1 : 0);
    if (theHold.Holding()) theHold.Put(ScenePlaceRestore::ofDeletion(node, node.link()));
    leave(node);
    node.DeleteMe();
    BroadcastNotification(NOTIFY_SCENE_POST_DELETED_NODE);
}

}  // namespace maxhost
