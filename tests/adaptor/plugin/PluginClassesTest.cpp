// What the host learns of the plug-in before it makes anything.

#include "adaptor/max/plugin/PluginClasses.h"

#include <gtest/gtest.h>

#include "tests/support/AdaptorFixture.h"

namespace {

using namespace qvo::zmx::adaptor::max;

class PluginClasses : public AdaptorFixture {};

TEST_F(PluginClasses, AreTheFiveThatScenesName) {
    const struct {
        const char* name;
        SClass_ID superClass;
        Class_ID id;
        int isPublic;
    } cases[] = {
        {"Zorva Kestrel Studio", 0x10E0, Class_ID(0x5C9473F4, 0x7D2E4160), 1},
        {"Zorva Kestrel Studio Util", 0x1020, Class_ID(0x7F8230EF, 0x2909190A), 1},
        {"Zorva Kestrel Studio helper object", 0x50, Class_ID(0x22E322A5, 0x3010606F), 0},
        {"Zorva Longfin MoCap control", 0x9008, Class_ID(0x708B15A4, 0x2AFA7C85), 1},
        {"Zorva Longfin MoCap scalar control", 0x9003, Class_ID(0x2ADE2E71, 0x21430FA0), 1},
    };
    EXPECT_STREQ(pluginDescription(), "Zorva Kestrel Studio v9.2");
    EXPECT_EQ(hostVersion(), 0x2EE02100u);
    ASSERT_EQ(numberOfClasses(), 5);
    for (int i = 0; i < 5; ++i) {
        ClassDesc* const descriptor = classDescriptor(i);
        ASSERT_NE(descriptor, nullptr);
        EXPECT_STREQ(descriptor->ClassName(), cases[i].name);
        EXPECT_EQ(descriptor->SuperClassID(), cases[i].superClass);
        EXPECT_EQ(descriptor->ClassID(), cases[i].id);
        EXPECT_EQ(descriptor->IsPublic(), cases[i].isPublic);
        EXPECT_STREQ(descriptor->Category(), "Zorva Animations");
        EXPECT_EQ(descriptor->InitialRollupPageState(), 0x7FFFFFFFu);
    }
    for (const int index : {-1, 5, 6, 1 << 30})
        EXPECT_EQ(classDescriptor(index), nullptr);
}

TEST_F(PluginClasses, OnlyTheManagerIsShared) {
    EXPECT_EQ(classDescriptor(0)->Create(), classDescriptor(0)->Create());
    for (const int index : {2, 3, 4}) {
        auto* const one = static_cast<ReferenceTarget*>(classDescriptor(index)->Create());
        auto* const other = static_cast<ReferenceTarget*>(classDescriptor(index)->Create());
        EXPECT_NE(one, other);
        EXPECT_EQ(one->ClassID(), classDescriptor(index)->ClassID());
        EXPECT_EQ(one->SuperClassID(), classDescriptor(index)->SuperClassID());
        one->DeleteThis();
        other->DeleteThis();
    }
}

}  // namespace
