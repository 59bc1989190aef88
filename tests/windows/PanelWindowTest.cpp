// The plug-in's library in the host's window on a real, if virtual, screen: buttons are clicked with the
// mouse.

#include <control.h>
#include <gtest/gtest.h>
#include <max.h>

#include "maxhost/HeadlessHost.h"
#include "resources/resource.h"
#include "tests/adaptor/plugin/TestInstallation.h"
#include "tests/windows/Screen.h"

namespace {

using qvo::zmx::test::TestInstallation;

constexpr char kUtility[] = "Zorva Kestrel Studio Util";
constexpr char kBoxCaption[] = "Zorva Kestrel Tools";
constexpr int kTextOfMessageBox = 0xffff;

/// What the message box said, once it was answered.
std::string boxText;

/// Looks for the plug-in's message box, which works the messages itself while it is open; keeps a picture of
/// it and clicks its button.
void CALLBACK answerBox(HWND, UINT, UINT_PTR, DWORD) {
    static int seen = 0;
    const HWND box = FindWindowA("#32770", kBoxCaption);
    if (box == nullptr) return;
    if (++seen != 4) return;  // drawn by then
    boxText = screen::textOf(GetDlgItem(box, kTextOfMessageBox));
    screen::pictureOf(box).writePng(ZK_PICTURE_FOLDER "/message-box.png");
    screen::click(GetDlgItem(box, IDOK));
}

class PanelWindow : public ::testing::Test {
  protected:
    PanelWindow() : installation("without_nothing.dll") {
        loaded = host.loadPlugin(ZK_PLUGIN) && host.start() && host.openUtility(kUtility);
        SetWindowPos(mainWindow(), HWND_TOPMOST, 40, 40, 320, 120, SWP_SHOWWINDOW);
        SetForegroundWindow(mainWindow());
        screen::workUntil([this] { return IsWindowVisible(mainWindow()) != FALSE; });
        screen::workFor(300);
    }
    ~PanelWindow() override {
        host.exit();
        EXPECT_EQ(host.faults(), std::vector<std::string>());
    }

    static HWND mainWindow() { return GetCOREInterface()->GetMAXHWnd(); }

    /// The page has no attach button of its own; the plug-in serves one that somebody adds.
    HWND addAttachButton() {
        const HWND page = GetParent(host.control(IDC_START_STUDIO));
        return CreateWindowExA(0, "BUTTON", "Detach", WS_CHILD | WS_VISIBLE, 200, 8, 80, 28, page,
                               reinterpret_cast<HMENU>(static_cast<INT_PTR>(IDC_ATTACH_CORE)), nullptr,
                               nullptr);
    }

    static void widen(HWND page) {
        RECT place = {0, 0, 0, 0};
        GetClientRect(page, &place);
        SetWindowPos(page, nullptr, 0, 0, 300, place.bottom, SWP_NOMOVE | SWP_NOZORDER);
    }

    TestInstallation installation;
    maxhost::HeadlessHost host;
    bool loaded = false;
};

TEST_F(PanelWindow, StartButtonReachesTheCore) {
    ASSERT_TRUE(loaded) << host.lastMessage();
    const HWND button = host.control(IDC_START_STUDIO);
    ASSERT_TRUE(IsWindowVisible(button));
    EXPECT_EQ(screen::textOf(button), "Start Kestrel Studio");
    screen::pictureOf(mainWindow()).writePng(ZK_PICTURE_FOLDER "/panel.png");
    TestInstallation::takeJournal();
    screen::click(button);
    std::string journal;
    EXPECT_TRUE(screen::workUntil([&] { return !(journal = TestInstallation::takeJournal()).empty(); }));
    EXPECT_EQ(journal, "openStudio window");
}

TEST_F(PanelWindow, AttachButtonAndMessageBox) {
    ASSERT_TRUE(loaded) << host.lastMessage();
    widen(GetParent(host.control(IDC_START_STUDIO)));
    const HWND attach = addAttachButton();
    ASSERT_NE(attach, nullptr);
    screen::workFor(100);
    screen::click(attach);
    EXPECT_TRUE(screen::workUntil([=] { return screen::textOf(attach) == "Attach"; }));
    EXPECT_EQ(GetModuleHandleA("core.dll"), nullptr) << "the library is freed";

    const UINT_PTR timer = SetTimer(nullptr, 0, 100, answerBox);
    screen::click(host.control(IDC_START_STUDIO));
    EXPECT_TRUE(screen::workUntil([] { return !boxText.empty() && !FindWindowA("#32770", kBoxCaption); }));
    KillTimer(nullptr, timer);
    EXPECT_EQ(boxText,
              "Unable to bind Core routines. Zorva Kestrel Studio is unable to start.\nPlease re-install the "
              "software and contact Zorva Animations in case the problem persists.");

    screen::click(attach);
    EXPECT_TRUE(screen::workUntil([=] { return screen::textOf(attach) == "Detach"; }));
    EXPECT_NE(GetModuleHandleA("core.dll"), nullptr);
}

TEST_F(PanelWindow, ControllerPageConverts) {
    ASSERT_TRUE(loaded) << host.lastMessage();
    Interface& ip = host.interface();
    auto* const object =
        static_cast<Object*>(ip.CreateInstance(HELPER_CLASS_ID, Class_ID(POINTHELP_CLASS_ID, 0)));
    ASSERT_NE(object, nullptr);
    INode* const node = ip.CreateObjectNode(object);
    const Class_ID ours(0x708B15A4, 0x2AFA7C85);
    node->SetTMController(static_cast<Control*>(ip.CreateInstance(CTRL_MATRIX3_CLASS_ID, ours)));
    ip.SelectNode(node);
    ASSERT_TRUE(host.setTaskMode(TASK_MODE_MOTION));
    const HWND button = host.control(IDC_CONVERT_TO_PRS);
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(screen::textOf(button), "Convert to PRS controller");
    screen::workFor(200);
    screen::click(button);
    EXPECT_TRUE(screen::workUntil([=] { return !(node->GetTMController()->ClassID() == ours); }));
    screen::workUntil([=] { return IsWindow(button) == FALSE; });
    EXPECT_FALSE(IsWindow(button)) << "the page ends with its controller";
}

}  // namespace
