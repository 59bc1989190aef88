#include <gtest/gtest.h>

#include <max.h>

#include <notify.h>
#include <units.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "maxhost/HeadlessHost.h"

namespace {

using maxhost::HeadlessHost;

/// What was heard, in order: "code" or "code:parameter".
std::string journal;

std::string parameterText(const NotifyInfo& info) {
    if (info.callParam == nullptr) return "";
    switch (info.intcode) {
        case NOTIFY_SYSTEM_PRE_NEW:
            return ":" + std::to_string(*static_cast<std::int32_t*>(info.callParam));
        case NOTIFY_FILE_PRE_OPEN:
        case NOTIFY_FILE_OPEN_FAILED:
            return ":" + std::to_string(*static_cast<FileIOType*>(info.callParam));
        case NOTIFY_FILE_PRE_SAVE:
        case NOTIFY_FILE_POST_SAVE:
            return ":" + std::filesystem::path(static_cast<char*>(info.callParam)).filename().string();
        case NOTIFY_NODE_RENAMED: {
            const NameChange* const change = static_cast<NameChange*>(info.callParam);
            return std::string(":") + change->oldname + ">" + change->newname;
        }
        case NOTIFY_SEL_NODES_PRE_DELETE:
            return ":" + std::to_string(static_cast<Tab<INode*>*>(info.callParam)->Count());
        case NOTIFY_SCENE_PRE_DELETED_NODE:
        case NOTIFY_SCENE_ADDED_NODE:
            return std::string(":") + static_cast<INode*>(info.callParam)->GetName();
        default:
            return "";
    }
}

void write(void* prefix, NotifyInfo* info) {
    journal += (journal.empty() ? "" : " ") + std::string(static_cast<const char*>(prefix)) +
               std::to_string(info->intcode) + parameterText(*info);
}

std::string takeJournal() {
    return std::exchange(journal, std::string());
}

class NotificationTest : public ::testing::Test {
  protected:
    NotificationTest() {
        journal.clear();
        for (int code = 1; code <= NOTIFY_SYSTEM_SHUTDOWN2; ++code)
            RegisterNotification(write, prefix, code);
    }
    ~NotificationTest() override { EXPECT_TRUE(host->faults().empty()); }

    char prefix[1] = {'\0'};
    std::unique_ptr<HeadlessHost> host = std::make_unique<HeadlessHost>();
    Interface* const ip = GetCOREInterface();
};

TEST_F(NotificationTest, EveryCommandSendsItsNotices) {
    const std::string file = ::testing::TempDir() + "notices.zms";
    const std::string absent = ::testing::TempDir() + "no such folder/notices.zms";
    char renamed[] = "b";
    INode* node = nullptr;
    const struct {
        const char* name;
        std::function<void()> command;
        const char* notices;
    } rows[] = {
        {"create", [&] { node = ip->CreateObjectNode(nullptr, "a"); }, "58 67:a"},
        {"rename", [&] { node->SetName(renamed); }, "30:a>b"},
        {"select", [&] { ip->SelectNode(node); }, "18"},
        {"select again", [&] { ip->SelectNode(node); }, "18"},
        {"add what is selected", [&] { ip->SelectNode(node, 0); }, ""},
        {"save", [&] { EXPECT_TRUE(host->save(file)); }, "13:notices.zms 14:notices.zms"},
        {"failed save", [&] { EXPECT_FALSE(host->save(absent)); }, "13:notices.zms"},
        {"export", [&] { EXPECT_TRUE(host->exportFile(file)); }, "27 28"},
        {"failed export", [&] { EXPECT_FALSE(host->exportFile(absent)); }, "27 29"},
        {"merge", [&] { EXPECT_TRUE(host->merge(file, true)); }, "11 58 67:b 18 12"},
        {"failed merge", [&] { EXPECT_FALSE(host->merge(absent)); }, "11"},
        {"import", [&] { EXPECT_TRUE(host->importFile(file)); }, "24 58 67:b 25"},
        {"failed import", [&] { EXPECT_FALSE(host->importFile(absent)); }, "24 26"},
        {"delete one", [&] { ip->DeleteNode(node); }, "68:b 69"},
        {"delete selection", [&] { host->deleteSelection(); }, "70:1 18 68:b 69 71"},
        {"undo", [&] { host->undo(); }, "67:b 18"},
        {"new, objects stay", [&] { host->newScene(2); }, "7:2 18 8"},
        {"new", [&] { host->newScene(1); }, "7:1 8"},
        {"open", [&] { EXPECT_TRUE(host->open(file)); }, "9:0 10"},
        {"failed open", [&] { EXPECT_FALSE(host->open(absent)); }, "9:0 15:0"},
        {"reset", [&] { host->reset(); }, "5 6"},
        {"reset from other settings",
         [&] { SetFrameRate(25), SetMasterUnitInfo(UNITS_METERS, 1), host->reset(); }, "2 1 5 2 1 6"},
        {"start", [&] { host->start(); }, "74"},
        {"exit", [&] { host->exit(); }, "73 76"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        takeJournal();
        row.command();
        EXPECT_EQ(takeJournal(), row.notices);
    }
    std::filesystem::remove(file);
}

/// Registers and takes out handlers while a notice goes round.
struct Meddler {
    char name[3];
    std::function<void()> action;

    static void hear(void* self, NotifyInfo* info) {
        Meddler* const meddler = static_cast<Meddler*>(self);
        write(meddler->name, info);
        if (meddler->action) meddler->action();
    }
};

TEST_F(NotificationTest, HandlersMayComeAndGoDuringABroadcast) {
    constexpr int kCode = 1000;
    Meddler first{"a", {}}, second{"b", {}}, third{"c", {}}, late{"d", {}};
    for (Meddler* meddler : {&first, &second, &third})
        RegisterNotification(Meddler::hear, meddler, kCode);
    first.action = [&] {
        UnRegisterNotification(Meddler::hear, &first, kCode);
        UnRegisterNotification(Meddler::hear, &third, kCode);
        for (int i = 0; i < 100; ++i)
            RegisterNotification(Meddler::hear, &late, kCode);
    };
    BroadcastNotification(kCode);
    EXPECT_EQ(takeJournal(), "a1000 b1000");
    EXPECT_NE(UnRegisterNotification(Meddler::hear, &late), 0);
    EXPECT_EQ(UnRegisterNotification(Meddler::hear, &late), 0);
    RegisterNotification(Meddler::hear, &second, kCode);
    BroadcastNotification(kCode);
    EXPECT_EQ(takeJournal(), "b1000 b1000");
    EXPECT_NE(UnRegisterNotification(Meddler::hear, &second, kCode), 0);
    BroadcastNotification(kCode);
    EXPECT_EQ(takeJournal(), "b1000");
}

struct CountingCallback : TimeChangeCallback {
    std::string times;
    void TimeChanged(TimeValue t) override { times += std::to_string(t) + " "; }
};

TEST_F(NotificationTest, TimeCallbacksHearOfChangesOnly) {
    CountingCallback callback;
    ip->RegisterTimeChangeCallback(&callback);
    for (const TimeValue t : {0, 160, 160, -20, 0})
        ip->SetTime(t);
    host->reset();
    ip->SetTime(99);
    host->reset();
    ip->UnRegisterTimeChangeCallback(&callback);
    ip->SetTime(5);
    EXPECT_EQ(callback.times, "160 -20 0 99 0 ");
}

TEST_F(NotificationTest, NothingIsLeftForTheNextHost) {
    CountingCallback callback;
    ip->RegisterTimeChangeCallback(&callback);
    ip->CreateObjectNode(nullptr);
    ip->DisableSceneRedraw();
    ip->SetCommandPanelTaskMode(TASK_MODE_MOTION);
    ip->EnableUndo(FALSE);
    DisableAccelerators();
    AnimateOn();
    SetFrameRate(25);
    SetMasterUnitInfo(UNITS_METERS, 1.0f);
    theHold.Begin();
    host.reset();
    takeJournal();
    host = std::make_unique<HeadlessHost>();
    ip->SetTime(7);
    EXPECT_EQ(callback.times, "");
    EXPECT_EQ(host->nodeCount(), 0u);
    EXPECT_FALSE(ip->IsSceneRedrawDisabled());
    EXPECT_EQ(ip->GetCommandPanelTaskMode(), TASK_MODE_CREATE);
    EXPECT_FALSE(theHold.IsUndoDisabled());
    EXPECT_TRUE(AcceleratorsEnabled());
    EXPECT_FALSE(Animating());
    EXPECT_EQ(GetFrameRate(), 30);
    EXPECT_DOUBLE_EQ(GetMasterScale(UNITS_INCHES), 1.0);
    EXPECT_FALSE(theHold.Holding());
    EXPECT_EQ(takeJournal(), "");
}

}  // namespace
