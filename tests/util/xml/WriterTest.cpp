#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

#include "tests/util/xml/TreeText.h"
#include "util/xml/Data.h"
#include "util/xml/Element.h"
#include "util/xml/Tag.h"
#include "util/xml/TagWithData.h"
#include "util/xml/Text.h"

namespace qvo::util::xml {
namespace {

Element comment(const std::string& text) {
    Element element = Text(text);
    element.kind = Element::kComment;
    return element;
}

Element tag(const std::string& name, std::initializer_list<Element> children) {
    Element element = Tag(name);
    for (const Element& child : children)
        element.addChild(child);
    return element;
}

TEST(XmlWriter, Layout) {
    const Element leaf = Tag("l");
    const struct {
        Element element;
        const char* laidOut;  // newline "\n", indent "  ", prefix ">"
        const char* oneLine;
    } kCases[] = {
        {leaf, "><l/>", "<l/>"},
        {Text("x & y"), "x &#38; y", "x &#38; y"},
        {comment("c<"), "><!-- c&#60;-- >", "<!-- c&#60;-- >"},
        {Element(), "", ""},
        {TagWithData("type", "x"), "><type>x</type>", "<type>x</type>"},
        {tag("a", {tag("b", {leaf}), leaf}), "><a>\n>  <b>\n>    <l/>\n>  </b>\n>  <l/>\n></a>",
         "<a><b><l/></b><l/></a>"},
        {tag("a", {Text("x"), Data("y"), leaf, Text("z")}), "><a>x y>  <l/>z</a>", "<a>x y<l/>z</a>"},
        {tag("a", {leaf, Text("x"), Text("y")}), "><a>\n>  <l/>\nx\ny\n></a>", "<a><l/>xy</a>"},
        {tag("a", {Element(), comment("c")}), "><a>\n\n>  <!-- c-- >\n></a>", "<a><!-- c-- ></a>"},
        {tag("a", {Text("x"), tag("b", {leaf})}), "><a>x>  <b>\n>    <l/>\n>  </b></a>",
         "<a>x<b><l/></b></a>"},
    };
    for (const auto& c : kCases) {
        EXPECT_EQ(c.element.toString("\n", "  ", ">"), c.laidOut);
        EXPECT_EQ(c.element.toString(), c.oneLine);
    }
}

TEST(XmlWriter, QuotesOfAttributes) {
    const struct {
        const char* value;
        const char* written;
    } kCases[] = {
        {"plain", "<a v=\"plain\"/>"},
        {"it's", "<a v=\"it's\"/>"},
        {"\"x\" <&", "<a v='\"x\" &#60;&#38;'/>"},
        {"\"it's\"\n", "<a v=\"&#34;it's&#34;&#10;\"/>"},
    };
    for (const auto& c : kCases) {
        Element element = Tag("a");
        element.attributes["v"] = c.value;
        EXPECT_EQ(element.toString(), c.written);
        EXPECT_EQ(Element(c.written).attribute("v"), c.value);
    }
}

TEST(XmlWriter, EveryByteReadsBack) {
    for (int code = 0; code < 256; ++code) {
        const std::string byte(1, static_cast<char>(code));
        EXPECT_EQ(Element::unescape(Element::escape(byte)), byte);
        Element element = tag(code > 127 ? "n" + byte : "n", {Text("x" + byte + byte)});
        if (byte != ">") element.attributes["v"] = byte + "'\"" + byte;
        EXPECT_EQ(treeText(Element(element.toString())), treeText(element)) << code;
        EXPECT_EQ(treeText(Element(element.toString("\r\n", "\t", " "))), treeText(element)) << code;
    }
}

TEST(XmlWriter, FileHasDeclarationAndTabs) {
    const std::string path = ::testing::TempDir() + "zk_element.xml";
    const Element element = tag("a", {tag("b", {Text("line\nend")}), Tag("c")});
    ASSERT_TRUE(element.writeFile(path));
    std::ifstream file(path, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    EXPECT_EQ(text, "<?xml version=\"1.0\"?>\n<a>\n\t<b>line&#10;end</b>\n\t<c/>\n</a>");
    file.close();
    Element read;
    EXPECT_EQ(read.readFile(path), 0);
    EXPECT_EQ(treeText(read), treeText(element));
    std::remove(path.c_str());
    EXPECT_FALSE(element.writeFile(::testing::TempDir()));
}

}  // namespace
}  // namespace qvo::util::xml
