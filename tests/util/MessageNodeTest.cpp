#include "util/MessageNode.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

namespace qvo::util {
namespace {

std::string heard;

std::string nameOf(MessageNode* node) {
    return node ? node->getName() : "-";
}

class Recorder : public MessageNode {
  public:
    using MessageNode::MessageNode;

    void receive(Message& message, bool broadcast) override {
        heard += getName() + (broadcast ? "*" : "") + std::to_string(message.code) + '(' +
                 nameOf(message.origin) + nameOf(message.sender) + nameOf(message.receiver) + ") ";
        if (onReceive) onReceive(message);
    }

    std::function<void(Message&)> onReceive;
};

class MessageNodeTest : public ::testing::Test {
  protected:
    void SetUp() override { heard.clear(); }

    void wireAll() {
        for (Recorder* const listener : {&a, &b, &c})
            listener->connect(&source);
        heard.clear();
    }

    Recorder source{"S"}, a{"A"}, b{"B"}, c{"C"};
    Message message{7};
};

TEST_F(MessageNodeTest, WiringIsSymmetricAndToldOnce) {
    EXPECT_TRUE(a.connect(&source));
    EXPECT_TRUE(a.connect(&source));
    EXPECT_EQ(heard, "S-1(AA-) ");
    EXPECT_TRUE(a.isListeningTo(&source) && source.hasListener(&a));
    EXPECT_EQ(a.getSource(0), &source);
    EXPECT_EQ(source.getListener(0), &a);
    EXPECT_TRUE(a.disconnect(&source));
    EXPECT_TRUE(a.disconnect(&source));
    EXPECT_EQ(heard, "S-1(AA-) S-2(AA-) ");
    EXPECT_EQ(a.getSourceCount() + source.getListenerCount(), 0);
    EXPECT_FALSE(a.connect(nullptr) || a.disconnect(nullptr));
}

TEST_F(MessageNodeTest, IndexOutsideTheRangeGivesNull) {
    wireAll();
    for (const int index : {-1, 3})
        EXPECT_EQ(source.getListener(index), nullptr);
    for (const int index : {-1, 1})
        EXPECT_EQ(a.getSource(index), nullptr);
}

TEST_F(MessageNodeTest, BroadcastGoesFromLastToFirstAndIsForwardable) {
    wireAll();
    b.onReceive = [&](Message& m) { b.sendToAsOrigin(&source, m); };
    source.broadcastAsOrigin(message);
    EXPECT_EQ(heard, "C*7(SSC) B*7(SSB) S7(BBB) A*7(SSA) ");
    heard.clear();
    source.broadcast(message);
    source.sendTo(&a, message);
    source.sendTo(nullptr, message);
    EXPECT_EQ(heard, "C*7(-SC) B*7(-SB) S7(BBB) A*7(-SA) A7(-S-) ");
}

TEST_F(MessageNodeTest, RoutingIsRestoredAlsoWhenAHandlerThrows) {
    wireAll();
    message.origin = &c;
    message.sender = &b;
    message.receiver = &a;
    a.onReceive = [](Message&) { throw std::runtime_error("handler"); };
    EXPECT_THROW(source.broadcastAsOrigin(message), std::runtime_error);
    EXPECT_THROW(source.sendToAsOrigin(&a, message), std::runtime_error);
    EXPECT_TRUE(message.origin == &c && message.sender == &b && message.receiver == &a);
}

TEST_F(MessageNodeTest, ListenersThatLeftAreSkippedAndNewOnesWait) {
    wireAll();
    auto doomed = std::make_unique<Recorder>("D");
    auto late = std::make_unique<Recorder>("L");
    doomed->connect(&source);
    a.disconnect(&source);
    a.connect(&source);  // order now B C D A
    heard.clear();
    a.onReceive = [&](Message&) {
        doomed.reset();
        b.disconnect(&source);
        late->connect(&source);
    };
    source.broadcast(message);
    EXPECT_EQ(heard, "A*7(-SA) S-2(BB-) S-1(LL-) C*7(-SC) ");
}

TEST_F(MessageNodeTest, DyingNodeCutsItsWiresSilently) {
    auto middle = std::make_unique<Recorder>("M");
    middle->connect(&source);
    a.connect(middle.get());
    heard.clear();
    middle.reset();
    EXPECT_EQ(source.getListenerCount() + a.getSourceCount(), 0);
    EXPECT_EQ(heard, "");
}

TEST_F(MessageNodeTest, NodeMayDieInItsOwnBroadcast) {
    auto shortLived = std::make_unique<Recorder>("X");
    a.connect(shortLived.get());
    b.connect(shortLived.get());
    b.onReceive = [&](Message&) { shortLived.reset(); };
    heard.clear();
    shortLived->broadcast(message);
    EXPECT_EQ(heard, "B*7(-XB) ");
    EXPECT_EQ(message.sender, nullptr);
}

TEST_F(MessageNodeTest, EitherNodeMayDieWhileTheSourceIsTold) {
    auto shortLived = std::make_unique<Recorder>("X");
    a.connect(shortLived.get());
    shortLived->onReceive = [&](Message&) { shortLived.reset(); };
    EXPECT_TRUE(a.disconnect(shortLived.get()));
    EXPECT_EQ(a.getSourceCount(), 0);
    shortLived = std::make_unique<Recorder>("Y");
    shortLived->connect(&source);
    source.onReceive = [&](Message&) { shortLived.reset(); };
    EXPECT_TRUE(shortLived->disconnect(&source));
    EXPECT_EQ(source.getListenerCount(), 0);
}

}  // namespace
}  // namespace qvo::util
