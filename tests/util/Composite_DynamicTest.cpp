#include "util/Composite_Dynamic.h"

#include <gtest/gtest.h>

#include <string>

namespace qvo::util {
namespace {

std::string hooks;

class Part : public Composite_Dynamic<Part> {
  public:
    explicit Part(char partName) : name(partName) {}
    void operate() override {}
    void beforeAttach() override { hooks += getParent() ? "1!" : "1"; }
    void afterAttach() override { hooks += getParent() ? "2" : "2!"; }
    void childAttached(Part* child, int index) override { hooks += {'5', child->name, char('0' + index)}; }

    const char name;
};

class CompositeTest : public ::testing::Test {
  protected:
    CompositeTest() {
        root.addChild(&a);
        root.addChild(&b);
        root.addChild(&c);
        hooks.clear();
    }

    static std::string names(const Part& part) {
        std::string result;
        for (const Part* const child : part.getChildren())
            result += child->name;
        return result;
    }

    Part root{'r'}, other{'o'}, a{'a'}, b{'b'}, c{'c'}, d{'d'};
};

TEST_F(CompositeTest, IndexIsClampedAndCountsPlacesBeforeTheMove) {
    const struct {
        Part* child;
        int index;
        const char* after;
    } kSteps[] = {
        {&d, 10, "abcd"}, {&a, 2, "bacd"}, {&d, 0, "dbac"},
        {&d, -1, "bacd"}, {&b, 1, "bacd"}, {nullptr, 0, "bacd"},
    };
    for (const auto& step : kSteps) {
        root.addChild(step.child, step.index);
        EXPECT_EQ(names(root), step.after);
    }
}

TEST_F(CompositeTest, MoveLeavesTheFormerParent) {
    other.addChild(&b);
    EXPECT_EQ(names(root), "ac");
    EXPECT_EQ(b.getParent(), &other);
    EXPECT_EQ(hooks, "125b0");
}

TEST_F(CompositeTest, ItselfAndAncestorsAreIgnored) {
    a.addChild(&d);
    for (Part* const above : {&d, &a, &root})
        d.addChild(above);
    EXPECT_EQ(d.childCount(), 0);
    EXPECT_EQ(names(root), "abc");
    EXPECT_EQ(root.getParent(), nullptr);
}

}  // namespace
}  // namespace qvo::util
