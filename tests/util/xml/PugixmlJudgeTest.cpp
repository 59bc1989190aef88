// pugixml as judge on what both understand: ASCII, numeric references, no white space at the ends of texts.

#include <gtest/gtest.h>

#include <pugixml.hpp>
#include <random>
#include <sstream>
#include <string>

#include "tests/util/xml/TreeText.h"
#include "util/xml/Element.h"
#include "util/xml/Tag.h"
#include "util/xml/Text.h"

namespace qvo::util::xml {
namespace {

class DocumentMaker {
  public:
    /// `characters` may stand in texts and attribute values.
    DocumentMaker(unsigned seed, std::string characters)
        : random_(seed), characters_(std::move(characters)) {}

    Element make(int depth) {
        Element element = Tag(word("abcXYZ_", 1));
        for (int i = below(3); i > 0; --i)
            element.attributes[word("klm", 1)] = word(characters_, 0);
        bool afterText = false;  // two texts side by side are one to any reader
        for (int i = depth > 0 ? below(5) : 0; i > 0; --i) {
            const bool text = !afterText && below(3) == 0;
            element.adoptChild(text ? Element(Text('x' + word(characters_, 0) + 'x')) : make(depth - 1));
            afterText = text;
        }
        return element;
    }

  private:
    int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

    std::string word(const std::string& characters, int least) {
        std::string result;
        for (int i = least + below(6); i > 0; --i) {
            result += characters[static_cast<std::size_t>(below(static_cast<int>(characters.size())))];
        }
        return result;
    }

    std::mt19937 random_;
    const std::string characters_;
};

Element fromPugixml(const pugi::xml_node& node) {
    if (node.type() == pugi::node_pcdata) return Text(node.value());
    Element element = Tag(node.name());
    for (const auto& attribute : node.attributes())
        element.attributes[attribute.name()] = attribute.value();
    for (const auto& child : node.children())
        element.adoptChild(fromPugixml(child));
    return element;
}

void toPugixml(const Element& element, pugi::xml_node parent) {
    if (element.kind == Element::kText) {
        parent.append_child(pugi::node_pcdata).set_value(element.value.c_str());
        return;
    }
    pugi::xml_node node = parent.append_child(element.value.c_str());
    for (const auto& [name, value] : element.attributes)
        node.append_attribute(name.c_str()) = value.c_str();
    for (const Element* const child : element.children)
        toPugixml(*child, node);
}

TEST(PugixmlJudge, ReadsWhatWeWrite) {
    std::string characters = "\t";
    for (char c = ' '; c <= '~'; ++c) {
        if (c != '>') characters += c;  // ends our tags
    }
    for (unsigned seed = 0; seed < 400; ++seed) {
        const Element element = DocumentMaker(seed, characters).make(5);
        pugi::xml_document judge;
        // pugixml would turn a tab written as reference into a blank if it normalised attribute values.
        const auto result =
            judge.load_string(element.toString().c_str(),
                              pugi::parse_default & ~static_cast<unsigned>(pugi::parse_wconv_attribute));
        ASSERT_TRUE(result) << result.description() << '\n' << element.toString();
        ASSERT_EQ(treeText(fromPugixml(judge.document_element())), treeText(element)) << element.toString();
    }
}

TEST(PugixmlJudge, WeReadWhatItWrites) {
    for (unsigned seed = 0; seed < 400; ++seed) {
        // No markup characters: pugixml writes them as named entities, which we leave as they are.
        const Element element = DocumentMaker(seed, "abz019 .,;:-_#(){}[]!?/=+*~'").make(5);
        pugi::xml_document judge;
        toPugixml(element, judge);
        std::ostringstream out;
        judge.save(out, "", pugi::format_raw);
        Element read;
        ASSERT_EQ(read.parse(out.str()), 0) << out.str();
        ASSERT_EQ(treeText(read), treeText(element)) << out.str();
    }
}

}  // namespace
}  // namespace qvo::util::xml
