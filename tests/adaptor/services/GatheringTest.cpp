// Tags on nodes, and what a gathering makes of them.

#include <stdexcept>

#include "tests/adaptor/services/TagScene.h"
#include "util/Base64.h"
#include "util/BlockCompression.h"

namespace qvo::zmx::adaptor::max {
namespace {

using util::ByteBuffer;
using util::xml::Element;

/// "name:parent:childindex" as a "masternode" element.
std::string masterNode(const std::string& notation) {
    const std::size_t parent = notation.find(':');
    const std::size_t index = notation.find(':', parent + 1);
    return "<masternode><ZMK_Plugin><name>" + notation.substr(0, parent) + "</name></ZMK_Plugin><parent>" +
           notation.substr(parent + 1, index - parent - 1) + "</parent><childindex>" +
           notation.substr(index + 1) + "</childindex></masternode>";
}

/// "a(b,c),d": names of the components under `element`, "?" for none, those of their children in brackets.
std::string outline(const Element& element) {
    std::string text;
    for (const Element* const child : element.children) {
        if (child->value != "ZMK_Plugin") continue;
        const std::string name = child->textOf("name");
        const std::string below = outline(*child);
        text += (text.empty() ? "" : ",") + (name.empty() ? "?" : name);
        if (!below.empty()) text += "(" + below + ")";
    }
    return text;
}

class Gathering : public TagScene {
  protected:
    /// Gathers for a core that deletes all nodes: none is left to be reported.
    std::string gather() {
        core.loaded.clear();
        core.onLoad = [](Element&) {
            while (INode* const node = ip().GetRootNode()->GetChildNode(0))
                ip().DeleteNode(node, FALSE, FALSE);
        };
        adaptor().gatherNodes();
        return core.loaded.empty() ? "nothing loaded" : outline(Element(core.loaded.back()));
    }
};

struct TreeCase {
    const char* name;
    std::vector<const char*> components;  ///< one tagged node each; what starts with "<" stands as it is
    const char* outline;
    const char* logged;
};

const TreeCase kTreeCases[] = {
    {"NoTags", {}, "", ""},
    {"Flat", {"a::", "b::"}, "a,b", ""},
    {"FirstOfEqualNamesWins", {"p::", "a:p:0", "a::"}, "p(a)", "Dropped a second component a of node node2"},
    {"MissingParent", {"a:nobody:3"}, "a", ""},
    {"ChildIndicesSort", {"p::", "b:p:2", "c:p:0", "d:p:1"}, "p(c,d,b)", ""},
    {"ChildIndexIsNoNumber", {"p::", "b:p:1", "c:p:abc", "d:p:-1", "e:p:99999999999999"}, "p(d,e,c,b)", ""},
    {"ParentsOnLaterNodes", {"c:b:0", "b:a:0", "a::"}, "a(b(c))", ""},
    {"CycleStaysOpenSomewhere", {"a:c:0", "b:a:0", "c:b:0", "d::"}, "a(b(c)),d", "its own ancestor"},
    {"OwnParent", {"a:a:0"}, "a", "component of node node0 would be its own ancestor"},
    {"NamelessOnesAreEqualAndNoParents", {"::", "::", "a::"}, "?,a", "component of node node1 has no name"},
    {"WithoutState",
     {"<masternode><parent>p</parent></masternode>", "a::"},
     "a",
     "without state of node node0"},
};

class GatheringTree : public Gathering, public ::testing::WithParamInterface<TreeCase> {};

TEST_P(GatheringTree, IsBuiltFromTheTags) {
    int number = 0;
    for (const std::string component : GetParam().components) {
        const std::string name = "node" + std::to_string(number++);
        addNode(name, tagText("tool", name, component[0] == '<' ? component : masterNode(component)));
    }
    EXPECT_EQ(gather(), GetParam().outline);
    EXPECT_TRUE(logged(GetParam().logged)) << log();
}

template <class Case>
std::string nameOf(const ::testing::TestParamInfo<Case>& info) {
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Trees, GatheringTree, ::testing::ValuesIn(kTreeCases), nameOf<TreeCase>);

ByteBuffer bytes(const std::string& text) {
    return {text.begin(), text.end()};
}

/// The block of a state, as Base64, cut to `size` bytes.
std::string packed(const std::string& state, std::size_t size = 1 << 20) {
    ByteBuffer block = util::BlockCompression::compress(bytes(state));
    block.resize(std::min(size, block.size()));
    return util::Base64::encode(block);
}

/// A block of one symbol that claims to stand for `length` of it.
std::string claiming(std::uint32_t length) {
    ByteBuffer block = util::BlockCompression::compress(bytes("<"));
    for (std::size_t i = 0; i < 4; ++i)
        block[12 + i] = static_cast<unsigned char>(length >> 8 * i);
    return util::Base64::encode(block);
}

const std::string kState = "<ZMK_Plugin><name>a</name></ZMK_Plugin>";

struct PayloadCase {
    const char* name;
    std::string payload;
    const char* outline;  ///< "b" is another component that has nothing to do with it
    const char* logged;
};

const PayloadCase kPayloadCases[] = {
    {"Block", packed(kState), "a,b", ""},
    {"PlainBytes", util::Base64::encode(bytes(kState)), "a,b", ""},
    {"NoBase64", "####", "b", "of node first: its compressed state is not Base64"},
    {"Base64WithABlank", packed(kState).insert(8, "    "), "b", "is not Base64"},
    {"LeafTableCut", packed(kState, 30), "b", "does not decompress"},
    {"StreamCut", packed(kState, 110), "a,b", "Kept a part of a component of node first"},
    {"NegativeLength", claiming(0x80000000u), "b", "does not decompress"},
    {"TooLarge", claiming((256u << 20) + 1), "b", "is too large"},
    {"NoXml", packed("no tag"), "b", "is not XML"},
    {"AnotherElement", packed("<masternode/>"), "b", "is no component's"},
    {"NoText", "<name>a</name>", "a,b", ""},
};

class GatheringPayload : public Gathering, public ::testing::WithParamInterface<PayloadCase> {};

TEST_P(GatheringPayload, IsUnpackedOrDroppedAlone) {
    addNode("first", tagText("tool", "first",
                             "<masternode><ZMK_Plugin compressed=\"1\">" + GetParam().payload +
                                 "</ZMK_Plugin></masternode>" + masterNode("b::")));
    EXPECT_EQ(gather(), GetParam().outline);
    EXPECT_TRUE(logged(GetParam().logged)) << log();
}

INSTANTIATE_TEST_SUITE_P(Payloads, GatheringPayload, ::testing::ValuesIn(kPayloadCases), nameOf<PayloadCase>);

TEST_F(Gathering, ReportsWhatNobodyTookBackAndEmptiesAllTags) {
    INode& taken = addNode("taken", tagText("tool", "t"));
    INode& left = addNode("left", tagText("tool", "l"), &taken);
    INode& damaged = addNode("damaged", "<ZMK_tag><name>tool</name><objectname>x", &left);
    INode& rubbish = addNode("rubbish", "no tag at all");
    INode* const deleted = &addNode("deleted", tagText("tool", "d"));
    core.onLoad = [&](Element&) {
        claim("tool", "t");
        ip().DeleteNode(deleted, FALSE, FALSE);
    };
    adaptor().gatherNodes();
    EXPECT_EQ(boxes.take(),
              std::vector<std::string>{
                  "Gather error: Some nodes were found beloning to Zorva Kestrel Studio, but they were never "
                  "claimed. \n The following nodes were left out:\n\nleft\ndamaged\n"});
    EXPECT_TRUE(logged("Node left was not claimed; its tag had 62 characters")) << log();
    EXPECT_TRUE(logged("The tag of node damaged is damaged (39 characters)"));
    EXPECT_TRUE(logged("The tag of node rubbish is damaged"));
    EXPECT_EQ(tagOf(taken) + tagOf(left) + tagOf(damaged), "");
    EXPECT_EQ(tagOf(rubbish), "no tag at all") << "nothing was read from it";
    EXPECT_EQ(createdNodes().size(), 1u);
}

TEST_F(Gathering, WithoutACoreNothingIsRead) {
    INode& node = addNode("a", tagText("tool", "a"));
    UtilityManager::instance().core = nullptr;
    adaptor().gatherNodes();
    EXPECT_NE(tagOf(node), "");
    EXPECT_TRUE(core.loaded.empty());
}

TEST_F(Gathering, RefusesToRunInsideItself) {
    addNode("a", tagText("tool", "a"));
    core.onLoad = [&](Element&) {
        adaptor().gatherNodes();
        claim("tool", "a");
    };
    adaptor().gatherNodes();
    EXPECT_EQ(core.loaded.size(), 1u);
    EXPECT_TRUE(logged("A gathering is running already"));
}

TEST_F(Gathering, AnExceptionOfTheCoreEndsNothing) {
    INode& node = addNode("a", tagText("tool", "a"));
    core.onLoad = [&](Element&) {
        claim("tool", "a");
        throw std::runtime_error("no memory");
    };
    adaptor().gatherNodes();
    EXPECT_EQ(tagOf(node), "");
    EXPECT_TRUE(logged("loadState: no memory"));
    EXPECT_EQ(gather(), "") << "it can run again";
}

class Tagging : public TagScene {
  protected:
    Tagging() {
        first = makeHelper("a");
        second = makeHelper("b");
        foreign = static_cast<CMAXNode*>(adaptor().createHelperNode(&stranger, "c", nullptr, nullptr));
    }

    std::string tagOfWrapper(CMAXNode* wrapper) { return tagOf(*wrapper->hostNode()); }

    TestOwner stranger{"stranger"};
    CMAXNode *first, *second, *foreign;
};

TEST_F(Tagging, TheFirstNodeCarriesTheState) {
    owner.name = "t<l";
    owner.state.emplace_back("<masternode><ZMK_Plugin><name>line\nbreak</name></ZMK_Plugin></masternode>");
    adaptor().tagOwnedNodes(&owner);
    EXPECT_EQ(tagOfWrapper(first),
              tagText("t&#60;l", "tool_a",
                      "<masternode><ZMK_Plugin><name>line&#10;break</name></ZMK_Plugin></masternode>"));
    EXPECT_EQ(tagOfWrapper(second), tagText("t&#60;l", "tool_b"));
    EXPECT_EQ(tagOfWrapper(foreign), "");
    adaptor().tagOwnedNodes(nullptr);
}

TEST_F(Tagging, WithoutStateNothingIsWritten) {
    second->hostNode()->SetUserPropString(TSTR("ZMK_tag"), TSTR("older"));
    adaptor().tagOwnedNodes(&owner);
    EXPECT_EQ(tagOfWrapper(first), "");
    EXPECT_EQ(tagOfWrapper(second), "older");
}

/// Deletes a node while its state is asked for.
class DeletingOwner : public TestOwner {
  public:
    using TestOwner::TestOwner;
    void writeState(Element& masternodes) override {
        doomed->deleteNode(true);
        masternodes.addTag("masternode");
    }
    CMAXNode* doomed = nullptr;
};

TEST_F(Tagging, TheStateGoesToTheFirstNodeThatIsLeft) {
    DeletingOwner deleting("tool");
    first->owner = second->owner = &deleting;
    deleting.doomed = first;
    adaptor().tagOwnedNodes(&deleting);
    EXPECT_EQ(tagOfWrapper(second), tagText("tool", "tool_b", "<masternode/>"));
}

}  // namespace
}  // namespace qvo::zmx::adaptor::max
