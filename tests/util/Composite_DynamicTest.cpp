#include "util/Composite_Dynamic.h"

#include <gtest/gtest.h>

#include <string>

namespace qvo::util {
namespace {

std::string hooks;

class Piece : public Composite_Dynamic<Piece> {
  public:
    explicit Piece(char pieceName) : name(pieceName) {}
    void operate() override {}
    void beforeAttach() override { hooks += getParent() ? "1!" : "1"; }
    void afterAttach() override { hooks += getParent() ? "2" : "2!"; }
    void childAttached(Piece* child, int index) override { hooks += {'5', child->name, char('0' + index)}; }

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

    static std::string names(const Piece& piece) {
        std::string result;
        for (const Piece* const child : piece.getChildren())
            result += child->name;
        return result;
    }

    Piece root{'r'}, other{'o'}, a{'a'}, b{'b'}, c{'c'}, d{'d'};
};

TEST_F(CompositeTest, IndexIsClampedAndCountsPlacesBeforeTheMove) {
    const struct {
        Piece* child;
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
    for (Piece* const above : {&d, &a, &root})
        d.addChild(above);
    EXPECT_EQ(d.childCount(), 0);
    EXPECT_EQ(names(root), "abc");
    EXPECT_EQ(root.getParent(), nullptr);
}

}  // namespace
}  // namespace qvo::util
