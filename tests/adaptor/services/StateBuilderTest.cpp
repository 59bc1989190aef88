#include "adaptor/max/services/StateBuilder.h"

#include <gtest/gtest.h>

#include <deque>

namespace qvo::zmx::adaptor::max {
namespace {

using util::xml::Element;

TEST(StateBuilder, AnyDepthIsRendered) {
    constexpr int kDepth = 50000;
    std::deque<StateBuilder> builders;
    for (int i = 0; i < kDepth; ++i) {
        builders.emplace_back(Element("<n/>"));
        if (i > 0) builders[i - 1].addChild(&builders.back());
    }
    Element copy("<former/>");
    builders.front().render(copy);
    EXPECT_EQ(builders.back().element.toString(), "<n/>") << "as it was";
    const std::string moved = builders.front().renderAndEmpty().toString();
    EXPECT_EQ(moved.size(), (kDepth - 1) * std::string("<n></n>").size() + 4);
    EXPECT_EQ(copy.toString(), moved);
}

}  // namespace
}  // namespace qvo::zmx::adaptor::max
