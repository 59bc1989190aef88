#pragma once

#include <string>
#include <vector>

#include "util/Message.h"

namespace qvo::util {

/// A party that hears other nodes and speaks to those that hear it, without either knowing the other's type.
/// Wiring is symmetric (a source lists its listeners, a listener its sources), nothing is owned, and a node
/// that dies cuts its wires without a message. Delivery is synchronous and may nest. Main thread only.
/// Wiring and asking are linear in the number of wires of the two nodes.
class MessageNode {
  public:
    explicit MessageNode(std::string name = std::string());
    MessageNode(const MessageNode&) = delete;
    MessageNode& operator=(const MessageNode&) = delete;

    virtual void setName(std::string name);  // slot 0
    /// The handler: called with `broadcast` true for a broadcast. Here it does nothing.
    virtual void receive(Message& message, bool broadcast);  // slot 1

    /// Delivers to one node; nothing happens for a null target.
    virtual void sendTo(MessageNode* target, Message& message);  // slot 2
    /// Delivers to the nodes that listen now, the last connected first; those that have gone by their turn
    /// are skipped, those that join meanwhile wait for the next broadcast.
    virtual void broadcast(Message& message);  // slot 3
    /// As sendTo and broadcast, with this node as the message's origin.
    virtual void sendToAsOrigin(MessageNode* target, Message& message);  // slot 4
    virtual void broadcastAsOrigin(Message& message);                    // slot 5

    /// Makes this node listen to `other` and tells `other` (kStartedListening). True also if it listened
    /// already (nothing is sent then); false for null.
    virtual bool connect(MessageNode* other);  // slot 6
    /// Tells `other` (kStoppedListening), then cuts the wire. True also if there was none; false for null.
    virtual bool disconnect(MessageNode* other);  // slot 7

    virtual std::string getName();                  // slot 8
    virtual int getSourceCount();                   // slot 9
    virtual MessageNode* getSource(int index);      // slot 10; null outside the range
    virtual int getListenerCount();                 // slot 11
    virtual MessageNode* getListener(int index);    // slot 12; null outside the range
    virtual bool hasListener(MessageNode* node);    // slot 13
    virtual bool isListeningTo(MessageNode* node);  // slot 14
    virtual ~MessageNode();                         // slot 15

  protected:
    /// Cuts all wires of this node without a message: for peers that must not be called any more.
    void cutWires() noexcept;

  private:
    void deliverTo(MessageNode& target, Message& message);
    void deliverToListeners(Message& message);

    std::string name_;
    std::vector<MessageNode*> listeners_;  ///< nodes that listen to this one, oldest wire first
    std::vector<MessageNode*> sources_;    ///< nodes that this one listens to, oldest wire first
};

}  // namespace qvo::util
