#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "tests/util/xml/TreeText.h"
#include "util/xml/Element.h"
#include "util/xml/Tag.h"

namespace qvo::util::xml {
namespace {

struct ParseCase {
    const char* name;
    std::string text;
    int result;
    const char* tree;
};

const ParseCase kParseCases[] = {
    {"StartAndEnd", " \n<a></a> trailing", 0, "a"},
    {"Nested", "<a><b>x</b><c d='1'/></a>", 0, "a(b('x') c{d=1})"},
    {"SpaceAroundTagsIsDropped", "<a>\n\t <b/> \n</a>", 0, "a(b)"},
    {"SpaceInFrontOfTextIsKept", "<a> x <b/></a>", 0, "a(' x ' b)"},
    {"SpaceInsideTags", "< a  b = \"1\"/>", 5, "a"},
    {"NameAfterSpace", "< a\tb=\"1\"\n/>", 0, "a{b=1}"},
    {"ReferencesAreBytes", "<n&#233; v='&#60;&#x3C;&amp;'>&#60;</n&#xe9;>", 0, "n\xE9{v=<<&amp;}('<')"},
    {"EndTagIsUnescapedBeforeItIsCompared", "<a></&#97;>", 0, "a"},
    {"EmptyBracketsSplitText", "<a>x<>y</></a>", 0, "a('x' 'y')"},
    {"TextOfNothingIsDropped", "<a>&#;<b/></a>", 0, "a(b)"},
    {"Comment", "<a><!-- &#60; / -- ></a>", 0, "a(!-- < / -- !)"},
    {"CommentKeepsItsSlash", "<a><!x/></a>", 0, "a(!x/!)"},
    {"CommentEndsAtTheFirstBracket", "<a><!-- x > y --></a>", 0, "a(!-- x ! ' y -->')"},
    {"DeclarationIsSkipped", "<?xml version=\"1.0\"?><a/>", 0, "a"},
    {"CommentMayFollowTheDeclaration", "<?xml?><!c><a/>", 0, "!c!"},
    {"DuplicateAttributeLastWins", "<a b='1' b=\"2\"/>", 0, "a{b=2}"},
    {"OtherQuoteInside", "<a b='\"' c=\"'\"/>", 0, "a{b=\"}{c='}"},
    {"NoSpaceBetweenAttributes", "<a b='1'c='2'/>", 0, "a{b=1}{c=2}"},
    {"QuestionMarkEndsTheAttributes", "<a b='1' ? c=2/>", 0, "a{b=1}"},
    {"NamelessAttribute", "<a ='1'/>", 0, "a{=1}"},
    {"ZeroByteEndsTheText", std::string("<a>\0</a>", 8), 3, "a"},
    {"Empty", "", 2, "?"},
    {"TextFirst", "x<a/>", 2, "?"},
    {"CommentFirst", "<!--c--><a/>", 2, "?"},
    {"EndTagAfterDeclaration", "<?xml?></a>", 2, "?"},
    {"NothingAfterDeclaration", "<?xml?>", 5, "?"},
    {"Unclosed", "<a><b/>x", 3, "a(b 'x')"},
    {"UnclosedBracket", "<a b='1' ", 3, "a{b=1}"},
    {"SlashedEndTagIsAnEmptyElement", "<a></a/>", 3, "a(a)"},
    {"WrongEnd", "<a><b/></c>", 4, "a(b)"},
    {"EndTagWithSpace", "<a></a >", 4, "a"},
    {"SpaceBeforeEquals", "<a b='1' c ='2'/>", 5, "a{b=1}"},
    {"SpaceAfterEquals", "<a b= '1'/>", 5, "a"},
    {"NoQuotes", "<a b=1/>", 5, "a"},
    {"NoClosingQuote", "<a b='1/>", 5, "a"},
    {"BracketInValueEndsTheTag", "<a b='>'/>", 5, "a"},
    {"FaultBelow", "<a><b/><c><d e/></c></a>", 5, "a(b)"},
};

TEST(XmlParser, ResultAndTree) {
    for (const ParseCase& c : kParseCases) {
        Element element;
        element.addTag("old");
        element.attributes["old"] = "1";
        EXPECT_EQ(element.parse(c.text), c.result) << c.name;
        EXPECT_EQ(treeText(element), c.tree) << c.name;
        EXPECT_EQ(treeText(Element(c.text)), c.tree) << c.name;
    }
}

TEST(XmlParser, ClearingKeepsTheKind) {
    Tag tag("a");
    EXPECT_EQ(tag.parse(""), 2);
    EXPECT_EQ(tag.kind, Element::kTag);
    EXPECT_EQ(tag.value, "");
}

TEST(XmlParser, MayParseWhatItHolds) {
    Element element = Tag("<a b='&#60;c/&#62;'>&#60;d&#62;x&#60;/d&#62;</a>");
    EXPECT_EQ(element.parse(element.value), 0);
    Element copy = element;
    EXPECT_EQ(element.parse(element.text()), 0);
    EXPECT_EQ(treeText(element), "d('x')");
    EXPECT_EQ(copy.parse(copy.attributes.at("b")), 0);
    EXPECT_EQ(treeText(copy), "c");
}

TEST(XmlParser, StreamLosesItsLineEnds) {
    std::istringstream stream("<?xml version=\"1.0\"?>\n<x\ny='1'>a\nb\n</x>\n");
    Element element;
    EXPECT_EQ(element.read(stream), 4);  // "<xy='1'>" is a tag of that name
    stream.clear();
    stream.str("<x\n y='1\n2'>a\r\nb\n\r\nc</x>");
    EXPECT_EQ(element.read(stream), 0);
    EXPECT_EQ(treeText(element), "x{y=12}('abc')");
    EXPECT_EQ(element.readFile(::testing::TempDir() + "no such file"), 1);
}

TEST(XmlParser, Unescape) {
    const struct {
        const char* text;
        std::string result;
    } kCases[] = {
        {"&#60;b", "<b"},
        {"&#x3c;&#x3C;", "<<"},
        {"&amp;&lt;&", "&amp;&lt;&"},
        {"&&#38;", "&&"},
        {"&#65 b", "Ab"},
        {"&#65xyz", "Ayz"},
        {"&#", ""},
        {"&#;b", "b"},
        {"&#abcx", ""},
        {"&#65ab;c", "Ac"},
        {"&#X41;", "41;"},
        {"&#321;", "A"},
        {"&#4294967361;", "A"},
        {"&#65&#66;", "A#66;"},
    };
    for (const auto& c : kCases)
        EXPECT_EQ(Element::unescape(c.text), c.result) << c.text;
}

}  // namespace
}  // namespace qvo::util::xml
