#include "samples/mocap_core/state/TakeState.h"

#include <gtest/gtest.h>

#include "samples/mocap_core/state/ToolElement.h"
#include "util/Base64.h"
#include "util/BlockCompression.h"
#include "util/Log.h"
#include "util/xml/Tag.h"

namespace qvo::zmx::mocap {
namespace {

using util::xml::Element;

/// The state as the adaptor unpacks it.
Element unpacked(const Element& state) {
    if (state.attribute("compressed") != "1") return state;
    const util::ByteBuffer bytes =
        util::BlockCompression::decompress(util::Base64::decode(state.children.at(0)->value));
    return Element(std::string(bytes.begin(), bytes.end()));
}

/// The tool tree as the adaptor gathers it: the first one is the parent of all others, which may come in any
/// order.
Element gathered(const Element& masternodes) {
    Element root;
    std::map<int, Element> children;
    for (const Element* masternode : masternodes.children) {
        Element state = unpacked(*masternode->findTag("ZMK_Plugin"));
        if (masternode->textOf("parent").empty())
            root = std::move(state);
        else if (masternode->textOf("parent") == tool::nameOf(root))
            children[std::stoi(masternode->textOf("childindex"))] = std::move(state);
    }
    for (const auto& [index, child] : children)
        root.addChild(child);
    return root;
}

TakeState fullState() {
    TakeState state;
    state.record.id = "0123456789abcdef";
    state.record.name = "walk & \"run\" <1>";
    state.record.multiplier = 4;
    state.record.userRate = 30;
    state.record.joints = {"Hips", "Left Leg"};
    state.record.clips = {{"/clips/a>b.bvh", 3, 0.0083333, 0.01, 0, 80},
                          {"more.bvh", 2, 0.04, 0.5, 120, 312}};
    state.record.props = {{"hat", "hat.obj", "Hips"}};
    state.record.camera = "Camera01";
    state.objects = {{"Hips", "walk_Hips"}, {"hat", "knitted hat"}, {"Camera01", "Camera01"}};
    return state;
}

std::string textOf(const TakeState& state) {
    util::xml::Tag masternodes("masternodes");
    state.writeTo(masternodes);
    return masternodes.toString("\n", " ");
}

TEST(TakeState, ComesBackWholeFromItsTools) {
    util::xml::Tag masternodes("masternodes");
    fullState().writeTo(masternodes);
    ASSERT_EQ(masternodes.children.size(), 5u) << "the take, two clips, a prop, a camera";
    const Element throughText(masternodes.toString());  // as a user property: one line
    const auto back = TakeState::readFrom(gathered(throughText));
    ASSERT_TRUE(back);
    EXPECT_EQ(textOf(*back), textOf(fullState()));
    EXPECT_EQ(back->record.clips.at(0).path, "/clips/a>b.bvh");
    EXPECT_EQ(back->objects.count("Left Leg"), 0u) << "its node was gone";
}

TEST(TakeState, DamagedPartsAreLeftOut) {
    const std::string clip =
        "<ZMK_Plugin type='mocap clip' frameTime='0.04' frames='2' metresPerUnit='1' "
        "firstTick='0' lastTick='";
    const struct {
        std::string inside;  // of a take with joint a
        std::size_t joints, clips, props;
        bool named;  // by a line in the log
    } cases[] = {
        {"", 1, 0, 0, false},
        {"<joint><name>b</name></joint><joint><name>a</name></joint><joint/>", 2, 0, 0, true},
        {clip + "192'/>" + clip + "1'/>", 1, 2, 0, false},
        {clip + "0'/>", 1, 0, 0, true},
        {clip + "-1'/>", 1, 0, 0, true},
        {clip + "2147483648'/>", 1, 0, 0, true},
        {"<ZMK_Plugin type='mocap clip' frameTime='1e-9' frames='10000001' metresPerUnit='1' "
         "firstTick='0' lastTick='2147483647'/>",
         1, 0, 0, true},
        {"<ZMK_Plugin type='mocap clip'/>", 1, 0, 0, true},
        {"<ZMK_Plugin type='mocap prop'><label>hat</label></ZMK_Plugin>", 1, 0, 1, false},
        {"<ZMK_Plugin type='mocap prop'><label>a</label></ZMK_Plugin>", 1, 0, 0, true},
        {"<ZMK_Plugin type='mocap camera'/>", 1, 0, 0, true},
        {"<ZMK_Plugin version='2.5'/>", 1, 0, 0, true},
    };
    for (const auto& row : cases) {
        const std::size_t logged = util::Log::contents().size();
        const Element take(
            "<ZMK_Plugin type='mocap take' multiplier='1' userRate='30'><name>id</name>"
            "<joint><name>a</name></joint>" +
            row.inside + "</ZMK_Plugin>");
        const auto state = TakeState::readFrom(take);
        ASSERT_TRUE(state) << row.inside;
        EXPECT_EQ(state->record.joints.size(), row.joints) << row.inside;
        EXPECT_EQ(state->record.clips.size(), row.clips) << row.inside;
        EXPECT_EQ(state->record.props.size(), row.props) << row.inside;
        EXPECT_EQ(util::Log::contents().size() > logged, row.named) << row.inside;
    }
    EXPECT_FALSE(TakeState::readFrom(Element("<ZMK_Plugin type='mocap take'><name>id</name></ZMK_Plugin>")));
    EXPECT_FALSE(TakeState::readFrom(
        Element("<ZMK_Plugin type='mocap take'><joint><name>a</name></joint></ZMK_Plugin>")));
}

}  // namespace
}  // namespace qvo::zmx::mocap
