#include <map>
#include <memory>

#include "adaptor/max/controllers/Conversion.h"
#include "adaptor/max/plugin/OptionStore.h"
#include "core/OptionGroup.h"
#include "tests/support/AdaptorFixture.h"
#include "tests/support/TestCoreObject.h"

namespace qvo::zmx::adaptor::max {
namespace {

using core::OptionType;

/// A check or, by its type, anything else with an id.
class TestOption : public core::OptionCheck {
  public:
    TestOption(unsigned int optionId, OptionType optionType) : id(optionId), type(optionType) {}

    unsigned int getId() override { return id; }
    const std::string& getLabel() override { return label; }
    const std::string& getTooltip() override { return label; }
    OptionType getType() override { return type; }
    bool getValue() override { return value; }
    void setValue(bool newValue) override { value = newValue; }

    void say(int code) {
        util::Message message(code);
        broadcastAsOrigin(message);
    }
    void toggle() {
        value = !value;
        say(core::kOptionChanged);
    }

    unsigned int id;
    OptionType type;
    std::string label = "Option " + std::to_string(id);
    bool value = false;
};

class TestOptionGroup : public core::OptionGroup {
  public:
    unsigned int getId() override { return 0; }
    const std::string& getLabel() override { return label; }
    const std::string& getTooltip() override { return label; }
    OptionType getType() override { return OptionType::group; }
    core::OptionElement* findElement(unsigned int id) override {
        const auto found = elements.find(id);
        return found == elements.end() ? nullptr : found->second.get();
    }

    TestOption& add(unsigned int id, OptionType type) {
        return *(elements[id] = std::make_unique<TestOption>(id, type));
    }

    std::string label;
    std::map<unsigned int, std::unique_ptr<TestOption>> elements;
};

class Options : public AdaptorFixture {
  protected:
    Options() { adaptor().bindAdaptorOptions(&group); }

    static bool stored(unsigned int id) { return UtilityManager::instance().options().value(id); }

    std::string told;
    TestCoreObject core{[this](const std::string& line) { told += line + ';'; }};
    TestOptionGroup group;
    TestOption& optimized = group.add(kOptimizedControllerOption, OptionType::check);
    TestOption& dynamicMeshes = group.add(kDynamicMeshesOption, OptionType::check);
    TestOption& convert = group.add(kConvertControllersOption, OptionType::button);
};

TEST_F(Options, BindingShowsTheStoredValuesAndListens) {
    adaptor().bindAdaptorOptions(&group);
    EXPECT_TRUE(optimized.value);
    EXPECT_FALSE(dynamicMeshes.value);
    for (const auto& [id, element] : group.elements)
        EXPECT_TRUE(element->hasListener(&adaptor())) << id;
    EXPECT_EQ(adaptor().getSourceCount(), 3);

    UtilityManager::instance().options().setValue(kDynamicMeshesOption, true);
    TestOptionGroup partial;
    TestOption& check = partial.add(kDynamicMeshesOption, OptionType::check);
    TestOption& noCheck = partial.add(kOptimizedControllerOption, OptionType::button);
    adaptor().bindAdaptorOptions(&partial);
    adaptor().bindAdaptorOptions(nullptr);
    EXPECT_TRUE(check.value);
    EXPECT_FALSE(noCheck.value);
    EXPECT_EQ(told, "") << "nothing was changed by that";
}

TEST_F(Options, AChangeIsStoredToldAndUndoable) {
    optimized.toggle();
    dynamicMeshes.toggle();
    EXPECT_FALSE(stored(kOptimizedControllerOption));
    EXPECT_TRUE(stored(kDynamicMeshesOption));
    EXPECT_EQ(told, "optionChanged 1027 0;optionChanged 1030 1;");
    EXPECT_EQ(host.undoNames(), (std::vector<std::string>{"Option 1030", "Option 1027"}));

    told.clear();
    EXPECT_TRUE(host.undo() && host.undo());
    EXPECT_TRUE(stored(kOptimizedControllerOption));
    EXPECT_FALSE(stored(kDynamicMeshesOption));
    EXPECT_EQ(told, "optionChanged 1030 0;optionChanged 1027 1;");
    EXPECT_TRUE(host.redo());
    EXPECT_FALSE(stored(kOptimizedControllerOption));

    UtilityManager::instance().core = nullptr;
    EXPECT_TRUE(host.undo()) << "also without a core";
    EXPECT_TRUE(stored(kOptimizedControllerOption));
}

TEST_F(Options, TheButtonConvertsAllControllersInOneGroup) {
    std::vector<INode*> nodes;
    for (const char* const name : {"a", "b", "c"})
        nodes.push_back(makeHelper(name)->hostNode());
    const auto converted = [&] {
        std::string kinds;
        for (INode* const node : nodes)
            kinds += isTransformControl(node->GetTMController()) ? "ours " : "host ";
        return kinds;
    };
    const std::size_t before = host.undoNames().size();
    convert.say(core::kOptionPressed);
    EXPECT_EQ(converted(), "host host host ");
    EXPECT_EQ(host.undoNames().size(), before + 1);
    EXPECT_EQ(host.undoNames().front(), "Option 1028");
    EXPECT_TRUE(host.undo());
    EXPECT_EQ(converted(), "ours ours ours ");
}

TEST_F(Options, OtherMessagesAreIgnored) {
    INode* const node = makeHelper("a")->hostNode();
    TestOption stranger(77, OptionType::check);
    TestOption wrongType(kOptimizedControllerOption, OptionType::list);
    adaptor().connect(&stranger);
    adaptor().connect(&wrongType);
    stranger.toggle();
    wrongType.toggle();
    optimized.say(core::kOptionPressed);
    convert.say(core::kOptionChanged);
    for (const int code : {16383, 17281, 16384, 17280, 0})
        optimized.say(code);
    util::Message noOrigin(core::kOptionPressed);
    convert.broadcast(noOrigin);

    EXPECT_TRUE(host.undoNames().empty());
    EXPECT_EQ(told, "");
    EXPECT_TRUE(isTransformControl(node->GetTMController()));
}

TEST_F(Options, DetachingCutsTheConnections) {
    adaptor().letGoOfCore();
    optimized.toggle();
    convert.say(core::kOptionPressed);
    EXPECT_TRUE(stored(kOptimizedControllerOption));
    EXPECT_TRUE(host.undoNames().empty());
    EXPECT_EQ(adaptor().getSourceCount(), 0);
    EXPECT_EQ(optimized.getListenerCount(), 0);
}

}  // namespace
}  // namespace qvo::zmx::adaptor::max
