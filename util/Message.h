#pragma once

#include <cstdint>
#include <list>

namespace qvo::util {

class MessageNode;

/// What message nodes send each other. The senders change origin, sender and receiver for the time of one
/// delivery only, so one message can be sent again, or forwarded from inside a handler.
class Message {
  public:
    static constexpr std::int32_t kStartedListening = -1;  ///< origin now listens to the receiver
    static constexpr std::int32_t kStoppedListening = -2;  ///< origin is about to stop listening

    explicit Message(std::int32_t messageCode, std::int32_t messageNumber = 0, void* messagePointer = nullptr)
        : code(messageCode), number(messageNumber), pointer(messagePointer) {}
    virtual ~Message() = default;  // slot 0

    MessageNode* origin = nullptr;    ///< the node that first sent the message; null until sent
    MessageNode* sender = nullptr;    ///< the node of the last hop; null until sent
    std::int32_t code;                ///< the kind of message
    std::int32_t number;              ///< message data
    void* pointer;                    ///< message data; not owned
    MessageNode* receiver = nullptr;  ///< during a broadcast the node being called, else null
    std::list<void*> list;            ///< for the parties' own use; not owned
};

}  // namespace qvo::util
