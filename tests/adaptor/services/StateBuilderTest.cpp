#include "adaptor/max/services/StateBuilder.h"

#include <gtest/gtest.h>

#include <deque>

namespace qvo::zmx::adaptor::max {
namespace {

using util::xml::Element;

/// Adds `<name/>` with a child index.
StateBuilder& add(std::deque<StateBuilder>& builders, const char* state, int childIndex,
                  StateBuilder* parent) {
    StateBuilder& builder = builders.emplace_back(Element(state));
    builder.childIndex = childIndex;
    if (parent) parent->addChild(&builder);
    return builder;
}

TEST(StateBuilder, RendersChildrenByIndexAndThenByOrder) {
    std::deque<StateBuilder> builders;
    StateBuilder& top = add(builders, "<top><name/></top>", 0, nullptr);
    StateBuilder& two = add(builders, "<two/>", 2, &top);
    add(builders, "<zero/>", 0, &top);
    add(builders, "<one/>", 1, &top);
    add(builders, "<first/>", -7, &two);
    add(builders, "<also_zero/>", 0, &top);
    const char* const expected = "<top><name/><zero/><also_zero/><one/><two><first/></two></top>";

    Element copy("<former/>");
    top.render(copy);
    EXPECT_EQ(copy.toString(), expected);
    EXPECT_EQ(top.element.toString(), "<top><name/></top>") << "as it was";
    EXPECT_EQ(top.renderAndEmpty().toString(), expected);
}

TEST(StateBuilder, AnyDepthIsRendered) {
    constexpr int kDepth = 50000;
    std::deque<StateBuilder> builders;
    StateBuilder* parent = nullptr;
    for (int i = 0; i < kDepth; ++i)
        parent = &add(builders, "<n/>", 0, parent);
    Element out;
    builders.front().render(out);
    EXPECT_EQ(out.toString().size(), (kDepth - 1) * std::string("<n></n>").size() + 4);
}

}  // namespace
}  // namespace qvo::zmx::adaptor::max
