#include <gtest/gtest.h>
#include <max.h>
#include <utilapi.h>

#include <string>

#include "maxhost/src/plugins/PluginLoader.h"

namespace {

using maxhost::ClassDirectory;
using maxhost::PluginLoader;

std::string pluginFile(const std::string& name) {
    return std::string(TEST_PLUGIN_FOLDER) + '/' + name;
}

/// Folders are joined by the system's own separator; only the file's name and the cause are compared.
std::string withoutFolder(const std::string& message) {
    const std::size_t name = message.find(".gup:");
    const std::size_t separator = message.find_last_of("/\\", name);
    return message.substr(separator + 1);
}

TEST(PluginLoader, LoadsAFolderInNameOrderAndRefusesTheRest) {
    ClassDirectory classes;
    PluginLoader loader(classes);
    EXPECT_EQ(loader.loadFolder(TEST_PLUGIN_FOLDER), 2u);
    ASSERT_EQ(loader.libraries().size(), 2u);
    EXPECT_EQ(loader.libraries()[0]->description(), "Test plug-in");
    ASSERT_EQ(loader.messages().size(), 5u);
    EXPECT_EQ(withoutFolder(loader.messages()[0]),
              "a_old.gup: built for release 11000 of the host, this is release 12000");
    EXPECT_EQ(withoutFolder(loader.messages()[1]),
              "c_twin.gup: class \"First utility\" has the ids of a class that is already there");
    EXPECT_EQ(withoutFolder(loader.messages()[3]), "d_partial.gup: does not export LibClassDesc");
    EXPECT_EQ(withoutFolder(loader.messages()[4]).substr(0, 14), "e_no_library.g");
}

TEST(PluginLoader, RegistersEachClassOnceAndTakesItBack) {
    ClassDirectory classes;
    PluginLoader loader(classes);
    const maxhost::PluginLibrary* const library = loader.load(pluginFile("b_good.gup"));
    ASSERT_NE(library, nullptr) << loader.messages()[0];
    const HMODULE module = GetModuleHandleA("b_good.gup");
    EXPECT_EQ(GetProcAddress(module, "requestsSoFar")(), 2);

    const std::vector<ClassDesc*> utilities = classes.ofSuperClass(UTILITY_CLASS_ID);
    ASSERT_EQ(utilities, library->classes());
    EXPECT_STREQ(utilities[1]->ClassName(), "Second utility");
    const Class_ID second(2, 0x7e577e57);
    EXPECT_EQ(classes.find(UTILITY_CLASS_ID, second), utilities[1]);
    EXPECT_EQ(classes.find(GUP_CLASS_ID, second), nullptr);
    auto* const instance = static_cast<UtilityObj*>(classes.createInstance(UTILITY_CLASS_ID, second));
    ASSERT_NE(instance, nullptr);
    instance->DeleteThis();
    EXPECT_EQ(classes.createInstance(UTILITY_CLASS_ID, second, TRUE), nullptr)
        << "told that a scene is loading";
    EXPECT_EQ(classes.createInstance(UTILITY_CLASS_ID, Class_ID(3, 3)), nullptr);

    loader.freeAll();
    EXPECT_EQ(GetModuleHandleA("b_good.gup"), nullptr);
    EXPECT_EQ(classes.find(UTILITY_CLASS_ID, second), nullptr);
    EXPECT_TRUE(classes.ofSuperClass(UTILITY_CLASS_ID).empty());
}

TEST(PluginLoader, MissingFileAndFolderLeaveAMessage) {
    ClassDirectory classes;
    PluginLoader loader(classes);
    EXPECT_EQ(loader.load("nowhere/none.gup"), nullptr);
    EXPECT_EQ(loader.loadFolder("nowhere"), 0u);
    ASSERT_EQ(loader.messages().size(), 2u);
    EXPECT_EQ(loader.messages()[0].substr(0, 18), "nowhere/none.gup: ");
    EXPECT_EQ(loader.messages()[1].substr(0, 9), "nowhere: ");
}

}  // namespace
