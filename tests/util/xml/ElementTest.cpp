#include "util/xml/Element.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "tests/util/xml/TreeText.h"
#include "util/xml/Tag.h"
#include "util/xml/TagWithData.h"
#include "util/xml/Text.h"

namespace qvo::util::xml {
namespace {

const char kFamily[] = "<a n='1'><b>x<c m='2'/></b><d/></a>";
const char kFamilyTree[] = "a{n=1}(b('x' c{m=2}) d)";

TEST(XmlElement, CopiesAreDeepAndIndependent) {
    const Element original(kFamily);
    Element copy(original);
    copy.children[0]->children[1]->value = "changed";
    copy.attributes.clear();
    EXPECT_EQ(treeText(original), kFamilyTree);
    EXPECT_EQ(treeText(copy), "a(b('x' changed{m=2}) d)");
    copy = original;
    EXPECT_EQ(treeText(copy), kFamilyTree);
}

TEST(XmlElement, AssignmentWithinOneTreeCopiesFirst) {
    Element own(kFamily);
    own.assign(own);
    EXPECT_EQ(treeText(own), kFamilyTree);
    own.assign(*own.children[0]);
    EXPECT_EQ(treeText(own), "b('x' c{m=2})");
    Element moved(kFamily);
    moved = std::move(*moved.children[0]->children[1]);
    EXPECT_EQ(treeText(moved), "c{m=2}");
    Element upward("<a><b/></a>");
    upward.children[0]->assign(upward);
    EXPECT_EQ(treeText(upward), "a(a(b))");
    EXPECT_EQ(treeText(upward.addChild(upward)), "a(a(b))");
    EXPECT_EQ(treeText(upward), "a(a(b) a(a(b)))");
}

TEST(XmlElement, AdoptedAndTakenSubtreesAreMoved) {
    Element a(kFamily);
    const Element* const grandchild = a.children[0]->children[1];
    Element root = Tag("r");
    EXPECT_EQ(root.adoptChild(std::move(a)).children[0]->children[1], grandchild);
    const Element back = root.takeChild(0);
    EXPECT_EQ(back.children[0]->children[1], grandchild);
    EXPECT_EQ(treeText(back), kFamilyTree);
    EXPECT_EQ(treeText(root), "r");
}

TEST(XmlElement, HelpersFindAndBuild) {
    Element root("<r k='v'><!name>two<name><x/>one<y/>more</name><name>later</name><empty/></r>");
    EXPECT_EQ(root.textOf("name"), "one");
    EXPECT_EQ(root.textOf("empty") + root.textOf("none") + Element().text(), "");
    EXPECT_EQ(root.text(), "two");
    EXPECT_EQ(root.findTag("two"), nullptr);
    EXPECT_EQ(root.attribute("k", "w") + root.attribute("l", "w"), "vw");
    Element built = Tag("a");
    built.addTag("b").addTextTag("c", "x").attributes["d"] = "1";
    EXPECT_EQ(treeText(built), "a(b(c{d=1}('x')))");
    EXPECT_EQ(treeText(TagWithData("type", "x")), "type('x')");
}

TEST(XmlElement, AHundredThousandLevels) {
    constexpr std::size_t kLevels = 100000;
    std::string text;
    for (std::size_t i = 0; i < kLevels; ++i)
        text += "<a>";
    Element element;
    EXPECT_EQ(element.parse(text), 3);
    for (std::size_t i = 0; i < kLevels; ++i)
        text += "</a>";
    ASSERT_EQ(element.parse(text), 0);
    Element copy = Tag("r");
    copy.addChild(element);
    EXPECT_EQ(copy.children[0]->toString().size(), text.size() - 3);  // the innermost is written "<a/>"
    element = std::move(*element.children[0]);
    element.clear();
    EXPECT_TRUE(element.children.empty());
}

}  // namespace
}  // namespace qvo::util::xml
