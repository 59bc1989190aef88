#include <gtest/gtest.h>

#include <string>

#include "maxhost/src/scripts/ScriptEngine.h"

namespace {

using maxhost::ScriptEngine;

/// Notes what the script had it do; "Stuck" is a utility that cannot be opened.
class NotingCommands : public maxhost::ScriptCommands {
  public:
    int taskMode() override { return mode; }
    void setTaskMode(int newMode) override {
        mode = newMode;
        done += "mode " + std::to_string(newMode) + "; ";
    }
    std::vector<std::string> utilityNames() override { return {"Stuck", "My 2nd utility"}; }
    bool openUtility(const std::string& className) override {
        done += "open " + className + "; ";
        mode = 6;
        return className != "Stuck";
    }
    void undo() override { done += "undo; "; }
    void redo() override { done += "redo; "; }

    int mode = 2;
    std::string done;
};

TEST(Script, RunsStatementsUntilTheFirstError) {
    const struct {
        const char* script;
        const char* done;
        const char* error;
    } cases[] = {
        {"", "", ""},
        {"p = getCommandPanelTaskMode();UtilityPanel.OpenUtility 'My_2nd_utility';setCommandPanelTaskMode "
         "mode:p;",
         "open My 2nd utility; mode 2; ", ""},
        {"P=#motion\nq = p\r\nsetcommandpaneltaskmode MODE: Q", "mode 4; ", ""},
        {"UtilityPanel.OpenUtility Nickname; max undo; MAX Redo", "open My 2nd utility; undo; redo; ", ""},
        {"max undo; UtilityPanel.OpenUtility 'Other'; max redo", "undo; ", "unknown utility class Other"},
        {"UtilityPanel.OpenUtility Stuck; max undo", "open Stuck; ",
         "the utility \"Stuck\" cannot be opened"},
        {"max undo; 'open", "", "the closing quote is missing"},
        {"max quit", "", "cannot run \"quit\""},
        {"p = unheard", "", "unknown variable unheard"},
    };
    for (const auto& each : cases) {
        NotingCommands commands;
        ScriptEngine engine(commands);
        engine.addClassAlias("nickname", "My 2nd utility");
        EXPECT_EQ(engine.run(each.script), *each.error == '\0') << each.script;
        EXPECT_EQ(engine.lastError(), each.error) << each.script;
        EXPECT_EQ(commands.done, each.done) << each.script;
    }
}

TEST(Script, VariablesLastAndErrorsDoNot) {
    NotingCommands commands;
    ScriptEngine engine(commands);
    EXPECT_FALSE(engine.run("before = #display; max quit"));
    EXPECT_TRUE(engine.run("setCommandPanelTaskMode mode:before"));
    EXPECT_EQ(commands.done, "mode 5; ");
    EXPECT_EQ(engine.lastError(), "");
    EXPECT_EQ(ScriptEngine::scriptName("Zorva's 3rd - tool"), "Zorva_s_3rd___tool");
}

}  // namespace
