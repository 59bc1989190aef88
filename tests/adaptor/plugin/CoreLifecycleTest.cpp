// The connection to a core library: found, loaded, checked, attached, ended, freed.

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "adaptor/max/plugin/UtilityManager.h"
#include "adaptor/max/services/MaxAdaptorInterface.h"
#include "tests/adaptor/plugin/TestInstallation.h"
#include "tests/support/AdaptorFixture.h"
#include "util/Log.h"
#include "util/SingletonCollector.h"

namespace {

using namespace qvo::zmx::adaptor::max;
using namespace qvo::zmx::test;
using qvo::util::Log;

constexpr char kCompleteCore[] = "without_nothing.dll";
constexpr char kStarted[] = "getVersion; attach; start; setOption 1027 1; setOption 1030 0";

/// Lines without their times.
std::string withoutTimes(const std::string& log) {
    std::istringstream lines(log);
    std::string line, text;
    while (std::getline(lines, line))
        text += line.substr(line.find('(') == std::string::npos ? 0 : line.find('(')) + '\n';
    return text;
}

class CoreLifecycle : public AdaptorFixture {
  protected:
    CoreLifecycle() { qvo::util::SingletonCollector::destroyAll(); }
    ~CoreLifecycle() override { manager_.detachCore(); }

    static std::string journal() { return TestInstallation::takeJournal(); }

    UtilityManager& manager_ = UtilityManager::instance();
};

TEST_F(CoreLifecycle, StartAttachesAndShutdownLeavesNothing) {
    TestInstallation installation(kCompleteCore);
    EXPECT_EQ(manager_.Start(), DWORD{GUPRESULT_KEEP});
    EXPECT_NE(manager_.core, nullptr);
    EXPECT_EQ(journal(), kStarted);

    ip().SetTime(4800);
    EXPECT_EQ(journal(), "timeChanged 1");

    BroadcastNotification(NOTIFY_SYSTEM_SHUTDOWN);
    EXPECT_EQ(journal(), "detach; unloaded");
    EXPECT_EQ(manager_.core, nullptr);
    EXPECT_EQ(manager_.coreModule, nullptr);
    EXPECT_EQ(MaxAdaptorInterface::existing(), nullptr);
    EXPECT_EQ(Log::contents(), "") << "a fresh log";

    manager_.Stop();
    BroadcastNotification(NOTIFY_SYSTEM_SHUTDOWN);
    EXPECT_EQ(Log::contents(), "");
    ip().SetTime(0);
    EXPECT_FALSE(manager_.queryEvent(nullptr));
}

TEST_F(CoreLifecycle, CoresThatAreNotAttached) {
    const struct {
        const char* library;
        const char* settings;
        const char* journal;
        bool loaded;
        const char* log;
    } cases[] = {
        {"without_nothing.dll", "version 9200", "getVersion; unloaded", false,
         "(ERROR): \tversion mismatch trying to attach to CORE\n(ERROR): \tCORE version: 9200\n"
         "(ERROR): \tAdaptor version: 9201\n"},
        {"without_nothing.dll", "version 9202", "getVersion; unloaded", false, "CORE version: 9202"},
        {"without_getVersion.dll", "", "unloaded", false, "CORE version: 0"},
        {"without_attach.dll", "", "getVersion", true, "has no \"attach\""},
        {"without_nothing.dll", "throw getVersion", "getVersion; unloaded", false, "CORE version: 0"},
        {"without_nothing.dll", "attach refuse", "getVersion; attach", true, ""},
        {"without_nothing.dll", "throw attach", "getVersion; attach", true, "Exception in attach"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(std::string(each.library) + ' ' + each.settings);
        qvo::util::SingletonCollector::destroyAll();
        TestInstallation installation(each.library, each.settings);
        EXPECT_EQ(manager_.loadCore(), 0);
        EXPECT_EQ(manager_.core, nullptr);
        EXPECT_EQ(manager_.coreModule != nullptr, each.loaded);
        EXPECT_EQ(journal(), each.journal);
        const std::string log = withoutTimes(Log::contents());
        EXPECT_NE(log.find(each.log), std::string::npos) << log;
        if (!each.loaded) {
            EXPECT_EQ(log.find("detaching"), std::string::npos) << log;
        }
        EXPECT_EQ(manager_.detachCore(), 0);
        EXPECT_EQ(manager_.coreModule, nullptr);
    }
}

TEST_F(CoreLifecycle, WithoutLibraryTheHostDoesNotKeepThePlugIn) {
    EXPECT_EQ(manager_.Start(), DWORD{GUPRESULT_NOKEEP}) << "no registry entry";
    TestInstallation installation("");
    EXPECT_EQ(manager_.Start(), DWORD{GUPRESULT_NOKEEP}) << "no core.dll";
    EXPECT_EQ(manager_.coreModule, nullptr);
    EXPECT_EQ(Log::contents(), "");
    BroadcastNotification(NOTIFY_SYSTEM_SHUTDOWN);
    EXPECT_EQ(Log::contents(), "") << "nothing was registered";
}

TEST_F(CoreLifecycle, DetachingAndAttachingAgainLoadsAnew) {
    TestInstallation installation(kCompleteCore, "record yes");
    for (int round = 0; round < 3; ++round) {
        EXPECT_EQ(manager_.loadCore(), 0);
        EXPECT_EQ(journal(), kStarted);
        EXPECT_EQ(manager_.detachCore(), 0);
        EXPECT_EQ(journal(), "detach; record released; unloaded");
        EXPECT_EQ(manager_.detachCore(), 0);
        EXPECT_EQ(journal(), "");
    }
    EXPECT_EQ(manager_.loadCore(), 0);
    journal();
    EXPECT_EQ(manager_.loadCore(), 0) << "over a core that is attached";
    EXPECT_EQ(journal(), std::string("detach; record released; unloaded; ") + kStarted);
    manager_.detachCore();
    journal();
    ip().FlushUndoBuffer();  // the emptied records run no code of a core
    EXPECT_EQ(journal(), "");
}

TEST_F(CoreLifecycle, MissingDetachIsSkipped) {
    TestInstallation installation("without_detach.dll");
    EXPECT_EQ(manager_.loadCore(), 0);
    ASSERT_NE(manager_.core, nullptr);
    journal();
    manager_.detachCore();
    EXPECT_EQ(journal(), "unloaded");
    EXPECT_EQ(manager_.core, nullptr);
}

TEST_F(CoreLifecycle, ACoreThatThrowsIsStillAttached) {
    for (const char* const settings : {"throw start", "throw setOption"}) {
        TestInstallation installation(kCompleteCore, settings);
        EXPECT_EQ(manager_.loadCore(), 0);
        EXPECT_NE(manager_.core, nullptr);
        EXPECT_EQ(journal(), kStarted);
        manager_.detachCore();
    }
}

TEST_F(CoreLifecycle, SupportSwitchMirrorsTheLogToItsEnd) {
    const std::string file = (TestInstallation::root() / "support.txt").string();
    TestInstallation installation(kCompleteCore);
    installation.registry.set("log", file);
    EXPECT_EQ(manager_.Start(), DWORD{GUPRESULT_KEEP});
    manager_.shutdown();
    std::ostringstream mirrored;
    mirrored << std::ifstream(file).rdbuf();
    const std::string text = withoutTimes(mirrored.str());
    EXPECT_NE(text.find("(NOTICE): \tShutting down adaptor\n(NOTICE): \tAdaptor is detaching core\n"),
              std::string::npos)
        << text;
    EXPECT_EQ(text.substr(text.size() - 6), "[EOF]\n");
}

}  // namespace
