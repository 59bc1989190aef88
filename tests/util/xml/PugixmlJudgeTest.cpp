// pugixml as judge on what both understand: ASCII, numeric references, no white space at the ends of texts.

#include <gtest/gtest.h>

#include <pugixml.hpp>
#include <random>
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

}  // namespace
}  // namespace qvo::util::xml
