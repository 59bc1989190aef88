#include "samples/mocap_core/options/OptionPanel.h"

#include <gtest/gtest.h>

#include "samples/mocap_core/options/ModuleResource.h"
#include "samples/mocap_core/options/OptionReader.h"
#include "tests/samples/mocap_core/FakeAdaptor.h"
#include "util/Log.h"

namespace qvo::zmx::mocap {
namespace {

/// Listens as the adaptor does, and notes what it hears.
class Listener : public util::MessageNode {
  public:
    std::string heard;

    void receive(util::Message& message, bool broadcast) override {
        auto& element = static_cast<core::OptionElement&>(*message.origin);
        heard += std::to_string(message.code) + " from " + std::to_string(element.getId());
        if (element.getType() == core::OptionType::check)
            heard += static_cast<core::OptionCheck&>(element).getValue() ? " on" : " off";
        heard += broadcast ? "; " : " to one; ";
    }
};

// This program carries the plug-in's resources, as the adaptor's library does: the fake adaptor is found in
// it.
TEST(OptionPanel, TheUsersHandIsHeardAndTheAdaptorsIsNot) {
    FakeAdaptor adaptor;
    OptionPanel panel;
    panel.open(adaptor);
    ASSERT_TRUE(adaptor.options);
    EXPECT_EQ(adaptor.options->getLabel(), "3ds max 2010 adaptor");
    EXPECT_NE(adaptor.options->findElement(1030)->getTooltip(), "");
    EXPECT_EQ(adaptor.options->findElement(1029), nullptr);
    Listener listener;
    for (const unsigned int id : {1027u, 1028u, 1030u})
        listener.connect(adaptor.options->findElement(id));

    panel.choose(1027, true);  // as it is
    panel.noteValue(1030, true);
    panel.choose(1030, true);
    panel.noteValue(77, true);
    EXPECT_EQ(listener.heard, "");
    EXPECT_TRUE(panel.value(1030) && panel.value(77) && !panel.value(78));

    panel.choose(1027, false);
    panel.press(1028);
    panel.choose(1030, false);
    EXPECT_EQ(listener.heard, "16960 from 1027 off; 16706 from 1028; 16960 from 1030 off; ");
    EXPECT_THROW(panel.choose(1028, true), std::runtime_error);
    EXPECT_THROW(panel.press(1027), std::runtime_error);
    EXPECT_THROW(panel.press(1), std::runtime_error);
}

TEST(OptionPanel, MissingDescriptionsAreNoFault) {
    const FakeAdaptor adaptor;
    EXPECT_TRUE(readResourceBeside(&adaptor, "XMLFILE", 152));
    EXPECT_FALSE(readResourceBeside(&adaptor, "XMLFILE", 153));
    EXPECT_FALSE(readResourceBeside(&adaptor, "TEXTFILE", 152));
    const struct { const void* table; } ofNoLibrary{&ofNoLibrary};
    EXPECT_FALSE(readResourceBeside(&ofNoLibrary, "XMLFILE", 152));
    EXPECT_THROW(OptionPanel().press(1028), std::runtime_error);
}

TEST(OptionReader, DamagedElementsAreLeftOut) {
    const auto read = [](const std::string& body) {
        return OptionReader::read(util::xml::Element("<group name='g'>" + body + "</group>"));
    };
    EXPECT_EQ(OptionReader::read(util::xml::Element("<list/>")), nullptr);
    EXPECT_EQ(OptionReader::read(util::xml::Element()), nullptr);
    EXPECT_EQ(read("")->findElement(0), nullptr);

    const char* const checks[] = {"id='x'", "id='0'", "id='-7'", "id='4294967303'", ""};
    for (const char* attributes : checks)
        EXPECT_EQ(read(std::string("<body><check ") + attributes + "/></body>")->findElement(7), nullptr);
    EXPECT_NE(read("<body>text<!x--><button id='7'/></body>")->findElement(7), nullptr);

    std::string nested = "<button id='7'/>";
    const std::string open = "<list><body>", close = "</body></list>";
    for (int depth = 1; depth < OptionReader::kMaxDepth; ++depth)
        nested = open + nested + close;
    EXPECT_NE(read("<body>" + nested + "</body>")->findElement(7), nullptr);
    EXPECT_EQ(read("<body>" + open + nested + close + "</body>")->findElement(7), nullptr);
}

}  // namespace
}  // namespace qvo::zmx::mocap
