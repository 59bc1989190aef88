#include "tests/adaptor/services/TagScene.h"

namespace qvo::zmx::adaptor::max {
namespace {

class NodeLookup : public TagScene {
  protected:
    /// Host names of what is found, "-" for nothing.
    static std::string find(const std::string& ownerName, const std::string& request) {
        std::string names;
        for (core::CoreNode* const view : lookUp(ownerName, request)) {
            names += (names.empty() ? "" : " ") + (view ? view->getName() : std::string("-"));
            if (view) view->destroy();
        }
        return names;
    }

    static std::string withUid(const std::string& uid) {
        return "<node name=\"nobody\"><UID>" + uid + "</UID></node>";
    }
};

TEST_F(NodeLookup, TheLastHitStaysInTagsAndInRecords) {
    addNode("inner", tagText("tool", "a"), &addNode("first", tagText("tool", "a")));
    INode* const last = &addNode("last", tagText("tool", "a"));
    addNode("foreign", tagText("other", "a"));
    addNode("damaged", "<ZMK_tag><name>tool</name><objectname>b</objectname>");
    // Names that run together must not be taken for each other.
    addNode("glued", tagText("toola", "b"));
    const std::string request = "<node name=\"a\"/><other/><node name=\"ab\"/><node name=\"b\"/><node/>";

    EXPECT_EQ(find("tool", request), "last - damaged -");
    EXPECT_EQ(find("other", request), "foreign - - -");
    EXPECT_EQ(find("", request), "- - - -");
    EXPECT_EQ(find("tool", ""), "");
    core.onLoad = [&](util::xml::Element&) {
        EXPECT_EQ(find("tool", request), "last - damaged -");
        ip().DeleteNode(last, FALSE, FALSE);
        EXPECT_EQ(find("tool", request), "inner - damaged -");
    };
    adaptor().gatherNodes();
    boxes.take();
    EXPECT_EQ(find("tool", request), "- - - -") << "the tags are empty";
}

TEST_F(NodeLookup, HandlesAreStrictDecimals) {
    const std::string handle = std::to_string(addNode("a", "").GetHandle());
    const std::string beyond = std::to_string((1ull << 32) + std::stoull(handle));
    const struct {
        std::string uid;
        const char* found;
    } rows[] = {{handle, "a"},       {"0" + handle, "a"},    {"", "-"},    {" " + handle, "-"},
                {handle + "x", "-"}, {"+" + handle, "-"},    {"-1", "-"},  {beyond, "-"},
                {"99999", "-"},      {"4294967296000", "-"}, {"0x1", "-"}, {"0", "-"},
                {"<n>1</n>", "-"},   {handle + "<n/>", "a"}};
    for (const auto& row : rows)
        EXPECT_EQ(find("tool", withUid(row.uid)), row.found) << row.uid;
    EXPECT_EQ(find("tool", withUid(std::to_string(ip().GetRootNode()->GetHandle()))), "-") << "the root";

    addNode("b", tagText("tool", "nobody"));
    EXPECT_EQ(find("tool", withUid(handle)), "b") << "the tag comes first";
}

TEST_F(NodeLookup, EachEntryGetsAViewOfItsOwn) {
    CMAXNode* const registered = makeHelper("a");
    registered->hostNode()->SetUserPropString(TSTR("ZMK_tag"), TSTR(tagText("tool", "x").c_str()));
    const auto views = lookUp("tool", "<node name=\"x\"/><node name=\"x\"/>");
    ASSERT_EQ(views.size(), 2u);
    ASSERT_TRUE(views[0] && views[1] && views[0] != views[1]);
    EXPECT_TRUE(views[0]->isSameNode(views[1]));
    EXPECT_EQ(views[0]->owner, &owner) << "as the node's registered wrapper has it";
    EXPECT_EQ(views[0]->name, "a");
    EXPECT_EQ(views[0]->claim(&owner, "again"), nullptr);
    EXPECT_EQ(createdNodes().size(), 1u);
    for (core::CoreNode* const view : views)
        view->destroy();
}

/// Cannot take the list.
class ThrowingSink : public core::AdaptorInterface::NodeList {
  public:
    void set(const std::vector<core::CoreNode*>& /*nodes*/) override { throw std::bad_alloc(); }
};

TEST_F(NodeLookup, ViewsThatCannotBeDeliveredAreNotLeaked) {
    addNode("a", tagText("tool", "a"));
    ThrowingSink sink;
    adaptor().lookupNode("tool", util::xml::Element("<r><node name=\"a\"/><node name=\"b\"/></r>"), sink);
    EXPECT_TRUE(logged("Exception in lookupNode"));
}

}  // namespace
}  // namespace qvo::zmx::adaptor::max
