// The utility panel: its page's life, and what the two buttons do.

#include <gtest/gtest.h>

#include "adaptor/max/plugin/ModuleInstance.h"
#include "adaptor/max/plugin/PanelDialog.h"
#include "adaptor/max/plugin/UtilityManager.h"
#include "adaptor/max/plugin/ZorvaUtilityObj.h"
#include "tests/adaptor/plugin/TestInstallation.h"
#include "tests/adaptor/plugin/test_pages.h"
#include "tests/support/AdaptorFixture.h"
#include "tests/support/MessageBoxes.h"

namespace {

using namespace qvo::zmx::adaptor::max;
using namespace qvo::zmx::test;

class Panel : public AdaptorFixture {
  protected:
    Panel() { enterModule(GetModuleHandleA(nullptr)); }
    ~Panel() override { manager_.detachCore(); }

    static void press(HWND page, int control) {
        SendMessageA(page, WM_COMMAND, MAKEWPARAM(control, BN_CLICKED), 0);
    }

    static std::string attachText(HWND page) {
        char text[32] = "no button";
        GetDlgItemTextA(page, IDC_ATTACH_BUTTON, text, sizeof text);
        return text;
    }

    UtilityManager& manager_ = UtilityManager::instance();
};

TEST_F(Panel, OnePageHoweverOftenItIsOpened) {
    ZorvaUtilityObj* const panel = new ZorvaUtilityObj;
    panel->BeginEditParams(&ip(), nullptr);
    const HWND page = manager_.panelWindow;
    ASSERT_NE(page, nullptr);
    EXPECT_NE(GetWindowLongPtrA(page, GWL_STYLE) & WS_VISIBLE, 0) << "shown, whatever its frame is";
    panel->BeginEditParams(&ip(), nullptr);
    EXPECT_EQ(manager_.panelWindow, page);

    panel->EndEditParams(&ip(), nullptr);
    EXPECT_FALSE(IsWindow(page));
    EXPECT_EQ(manager_.panelWindow, nullptr);
    panel->EndEditParams(&ip(), nullptr);
    manager_.detachCore();  // its text finds no window
    panel->DeleteThis();
}

TEST_F(Panel, ButtonTextDecidesBetweenAttachAndDetach) {
    TestInstallation installation("without_nothing.dll", "record yes");
    ZorvaUtilityObj panel;
    panel.BeginEditParams(&ip(), nullptr);
    const HWND page = manager_.panelWindow;
    EXPECT_EQ(attachText(page), "Attach");

    press(page, IDC_ATTACH_BUTTON);
    EXPECT_NE(manager_.core, nullptr);
    EXPECT_EQ(attachText(page), "Detach");
    const std::string attached = TestInstallation::takeJournal();
    EXPECT_NE(attached.find("; loadState <ZMK/>"), std::string::npos) << "nodes are gathered: " << attached;

    EXPECT_EQ(host.undoNames().size(), 1u);

    press(page, IDC_START_BUTTON);
    EXPECT_EQ(TestInstallation::takeJournal(), "openStudio window");

    panel.EndEditParams(&ip(), nullptr);
    panel.BeginEditParams(&ip(), nullptr);
    EXPECT_EQ(attachText(manager_.panelWindow), "Detach") << "a page opened while attached";
    press(manager_.panelWindow, IDC_ATTACH_BUTTON);
    EXPECT_EQ(manager_.core, nullptr);
    EXPECT_EQ(attachText(manager_.panelWindow), "Attach");
    EXPECT_TRUE(host.undoNames().empty());
    EXPECT_NE(log().find("Flushing 3ds max undo buffer"), std::string::npos);
    panel.EndEditParams(&ip(), nullptr);
}

TEST_F(Panel, StartWithoutCoreTellsTheUser) {
    MessageBoxes boxes;
    panelDialogProc(nullptr, WM_COMMAND, MAKEWPARAM(IDC_START_BUTTON, BN_CLICKED), 0);
    EXPECT_EQ(boxes.take(),
              std::vector<std::string>{
                  "Zorva Kestrel Tools: Unable to bind Core routines. Zorva Kestrel Studio is unable to "
                  "start.\nPlease re-install the software and contact Zorva Animations in case the problem "
                  "persists."});
}

}  // namespace
