#include "util/MessageNode.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace qvo::util {
namespace {

bool contains(const std::vector<MessageNode*>& nodes, const MessageNode* node) {
    return std::find(nodes.begin(), nodes.end(), node) != nodes.end();
}

void remove(std::vector<MessageNode*>& nodes, const MessageNode* node) {
    nodes.erase(std::remove(nodes.begin(), nodes.end(), node), nodes.end());
}

MessageNode* at(const std::vector<MessageNode*>& nodes, int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= nodes.size()) return nullptr;
    return nodes[static_cast<std::size_t>(index)];
}

/// Puts the message's routing back as it was before a delivery, also when a handler throws.
class RoutingScope {
  public:
    explicit RoutingScope(Message& message)
        : message_(message), origin_(message.origin), sender_(message.sender), receiver_(message.receiver) {}
    RoutingScope(const RoutingScope&) = delete;
    RoutingScope& operator=(const RoutingScope&) = delete;
    ~RoutingScope() {
        message_.receiver = receiver_;
        message_.sender = sender_;
        message_.origin = origin_;
    }

  private:
    Message& message_;
    MessageNode* origin_;
    MessageNode* sender_;
    MessageNode* receiver_;
};

/// Tells a delivery under way that its node has been destroyed by a handler.
class DeliveryScope {
  public:
    explicit DeliveryScope(const MessageNode& node) : node_(&node), outer_(innermost_) { innermost_ = this; }
    DeliveryScope(const DeliveryScope&) = delete;
    DeliveryScope& operator=(const DeliveryScope&) = delete;
    ~DeliveryScope() { innermost_ = outer_; }

    bool nodeLives() const { return node_ != nullptr; }

    static void nodeDies(const MessageNode& node) {
        for (DeliveryScope* scope = innermost_; scope; scope = scope->outer_) {
            if (scope->node_ == &node) scope->node_ = nullptr;
        }
    }

  private:
    static inline DeliveryScope* innermost_ = nullptr;

    const MessageNode* node_;
    DeliveryScope* outer_;
};

}  // namespace

MessageNode::MessageNode(std::string name) : name_(std::move(name)) {}

MessageNode::~MessageNode() {
    DeliveryScope::nodeDies(*this);
    cutWires();
}

void MessageNode::cutWires() noexcept {
    for (MessageNode* const listener : listeners_)
        remove(listener->sources_, this);
    for (MessageNode* const source : sources_)
        remove(source->listeners_, this);
    listeners_.clear();
    sources_.clear();
}

void MessageNode::setName(std::string name) {
    name_ = std::move(name);
}

void MessageNode::receive(Message& /*message*/, bool /*broadcast*/) {}

void MessageNode::sendTo(MessageNode* target, Message& message) {
    if (!target) return;
    const RoutingScope routing(message);
    deliverTo(*target, message);
}

void MessageNode::broadcast(Message& message) {
    const RoutingScope routing(message);
    deliverToListeners(message);
}

void MessageNode::sendToAsOrigin(MessageNode* target, Message& message) {
    if (!target) return;
    const RoutingScope routing(message);
    message.origin = this;
    deliverTo(*target, message);
}

void MessageNode::broadcastAsOrigin(Message& message) {
    const RoutingScope routing(message);
    message.origin = this;
    deliverToListeners(message);
}

void MessageNode::deliverTo(MessageNode& target, Message& message) {
    message.sender = this;
    target.receive(message, /*broadcast=*/false);
}

void MessageNode::deliverToListeners(Message& message) {
    const DeliveryScope broadcasting(*this);
    message.sender = this;
    const std::vector<MessageNode*> present = listeners_;  // handlers may connect, disconnect and destroy
    for (auto listener = present.rbegin(); listener != present.rend(); ++listener) {
        if (!broadcasting.nodeLives()) return;
        if (!contains(listeners_, *listener)) continue;
        message.receiver = *listener;
        (*listener)->receive(message, /*broadcast=*/true);
    }
}

bool MessageNode::connect(MessageNode* other) {
    if (!other) return false;
    if (contains(sources_, other)) return true;
    if (contains(other->listeners_, this)) return false;      // the two lists disagree
    other->listeners_.reserve(other->listeners_.size() + 1);  // without memory neither list changes
    sources_.push_back(other);
    other->listeners_.push_back(this);
    Message started(Message::kStartedListening);
    sendToAsOrigin(other, started);
    return true;
}

bool MessageNode::disconnect(MessageNode* other) {
    if (!other) return false;
    if (!contains(sources_, other)) return true;
    if (!contains(other->listeners_, this)) return false;  // the two lists disagree
    Message stopped(Message::kStoppedListening);
    const DeliveryScope telling(*this);
    sendToAsOrigin(other, stopped);
    // The handler may have destroyed this node or `other`, or cut the wire.
    if (!telling.nodeLives() || !contains(sources_, other)) return true;
    remove(sources_, other);
    remove(other->listeners_, this);
    return true;
}

std::string MessageNode::getName() {
    return name_;
}

int MessageNode::getSourceCount() {
    return static_cast<int>(sources_.size());
}

MessageNode* MessageNode::getSource(int index) {
    return at(sources_, index);
}

int MessageNode::getListenerCount() {
    return static_cast<int>(listeners_.size());
}

MessageNode* MessageNode::getListener(int index) {
    return at(listeners_, index);
}

bool MessageNode::hasListener(MessageNode* node) {
    return contains(listeners_, node);
}

bool MessageNode::isListeningTo(MessageNode* node) {
    return contains(sources_, node);
}

}  // namespace qvo::util
