// Each host notification, and what becomes of it while a core is attached and while none is.

#include "adaptor/max/plugin/HostEvents.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "adaptor/max/plugin/UtilityManager.h"
#include "tests/support/AdaptorFixture.h"
#include "tests/support/TestCoreObject.h"

namespace {

using namespace qvo::zmx::adaptor::max;
using qvo::zmx::test::JournalCore;

constexpr char kGathered[] = "loadState <ZMK/>;";
FileIOType sceneFile = IOTYPE_MAX;
FileIOType presetFile = IOTYPE_RENDER_PRESETS;

class HostEvents : public AdaptorFixture {
  protected:
    HostEvents() { registerHostEvents(manager_); }

    /// What the core hears. A gathering ends with what it gathered, here nothing.
    std::string notesOf(int code, void* parameter) {
        journal_.clear();
        BroadcastNotification(code, parameter);
        return journal_;
    }

    std::string journal_;
    TestCoreObject core_{[this](const std::string& line) { journal_ += line + ';'; }};
    UtilityManager& manager_ = UtilityManager::instance();
};

TEST_F(HostEvents, CoreAndAdaptorHearWhatConcernsThem) {
    Tab<INode*> nodes;
    const struct {
        int code;
        void* parameter;
        const char* attached;
        const char* afterStop;
    } cases[] = {
        {5, nullptr, "sceneClosing;", ""},
        {7, nullptr, "sceneClosing;", ""},
        {9, nullptr, "sceneClosing;", ""},
        {9, &sceneFile, "sceneClosing;", ""},
        {9, &presetFile, "", ""},
        {10, &presetFile, kGathered, ""},
        {12, nullptr, kGathered, ""},
        {14, nullptr, "", ""},
        {24, nullptr, "sceneClosing;", "sceneClosing;"},
        {24, &presetFile, "sceneClosing;", "sceneClosing;"},
        {25, nullptr, kGathered, kGathered},
        {28, nullptr, "", ""},
        {70, &nodes, "queryEvent information;handleEvent;", ""},
        {70, nullptr, "queryEvent information;handleEvent;", ""},
    };
    core_.wantsEvents = true;
    for (const auto& each : cases)
        EXPECT_EQ(notesOf(each.code, each.parameter), each.attached) << each.code;

    core_.wantsEvents = false;
    EXPECT_EQ(notesOf(70, &nodes), "queryEvent information;");

    manager_.core = nullptr;
    for (const auto& each : cases)
        EXPECT_EQ(notesOf(each.code, each.parameter), "") << each.code;

    manager_.core = &core_;
    manager_.Stop();
    for (const auto& each : cases)
        EXPECT_EQ(notesOf(each.code, each.parameter), each.afterStop) << each.code;
}

TEST_F(HostEvents, NoExceptionReachesTheHost) {
    JournalCore throwing([](const std::string& line) { throw std::runtime_error(line); });
    manager_.core = &throwing;
    for (const int code : {5, 7, 9, 24, 70})
        EXPECT_NO_THROW(BroadcastNotification(code, nullptr));
    manager_.TimeChanged(0);
    for (const char* const operation : {"sceneClosing", "queryEvent", "timeChanged"})
        EXPECT_NE(log().find(std::string("Exception in ") + operation), std::string::npos);
}

}  // namespace
