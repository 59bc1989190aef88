#include <gtest/gtest.h>
#include <max.h>
#include <utilapi.h>

#include <map>
#include <sstream>
#include <string>

#include "maxhost/src/panel/CommandPanel.h"
#include "maxhost/src/scripts/PanelScriptCommands.h"
#include "maxhost/src/scripts/ScriptEngine.h"
#include "tests/maxhost/modules/test_pages.h"

namespace {

using maxhost::CommandPanel;
using maxhost::HostWindow;

/// What utilities and controllers were told, one letter for whom.
std::string told;

void note(const std::string& event) {
    told += (told.empty() ? "" : ", ") + event;
}

class NotingUtility : public UtilityObj {
  public:
    explicit NotingUtility(const char* className) : name(className) {}
    void BeginEditParams(Interface*, IUtil*) override { note("begin " + name); }
    void EndEditParams(Interface*, IUtil* panel) override {
        note("end " + name);
        panel->CloseUtility();  // already closing: must not come round again
    }
    void SelectionSetChanged(Interface*, IUtil*) override { note("selection " + name); }
    void DeleteThis() override {
        note("delete " + name);
        delete this;
    }

  private:
    const std::string name;
};

class NotingClass : public ClassDesc {
  public:
    NotingClass(const char* className, ULONG part) : name(className), id(part) {}
    int IsPublic() override { return 1; }
    void* Create(BOOL) override { return static_cast<UtilityObj*>(new NotingUtility(name)); }
    const TCHAR* ClassName() override { return name; }
    SClass_ID SuperClassID() override { return UTILITY_CLASS_ID; }
    Class_ID ClassID() override { return Class_ID(id, 1); }
    const TCHAR* Category() override { return ""; }

  private:
    const char* const name;
    const ULONG id;
};

class NotingController : public Animatable {
  public:
    explicit NotingController(const char* controllerName) : name(controllerName) {}
    void DeleteThis() override {}
    void BeginEditParams(IObjParam*, ULONG flags, Animatable* prev) override {
        note("begin " + name + (flags == BEGIN_EDIT_MOTION ? "" : "?") + (prev != nullptr ? " after" : ""));
    }
    void EndEditParams(IObjParam*, ULONG flags, Animatable* next) override {
        note("end " + name + (flags == END_EDIT_REMOVEUI ? "" : "?") + (next != nullptr ? " before" : ""));
    }

  private:
    const std::string name;
};

class Panel : public ::testing::Test {
  protected:
    Panel() : panel(nullptr, window, [this] { return selected; }) { told.clear(); }

    /// Closes its own page from inside the command.
    static INT_PTR CALLBACK closeOnPress(HWND page, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_INITDIALOG) SetWindowLongPtrA(page, GWLP_USERDATA, lParam);
        if (message != WM_COMMAND || LOWORD(wParam) != IDC_PRESS) return FALSE;
        auto* const test = reinterpret_cast<Panel*>(GetWindowLongPtrA(page, GWLP_USERDATA));
        test->panel.rollups().remove(page);
        SetWindowLongPtrA(page, GWLP_USERDATA, 0);
        return TRUE;
    }

    NotingClass utilityA{"A", 1};
    NotingClass utilityB{"B", 2};
    NotingController controllerX{"X"};
    NotingController controllerY{"Y"};
    Animatable* selected = nullptr;
    HostWindow window;
    CommandPanel panel;
};

TEST_F(Panel, UtilitiesAndControllersAreToldInOrder) {
    const struct {
        const char* actions;
        const char* expected;
    } cases[] = {
        {"open:A open:A mode:6", "begin A"},
        {"open:A open:B", "begin A, end A, delete A, begin B"},
        {"open:A mode:1 mode:6", "begin A, end A, delete A"},
        {"open:A close close", "begin A, end A, delete A"},
        {"open:A select:- close select:-", "begin A, selection A, end A, delete A"},
        {"open:A mode:0 mode:7", "begin A"},
        {"mode:4 select:X select:X", "begin X"},
        {"select:X mode:4 mode:2", "begin X, end X"},
        {"select:X mode:4 replace:Y select:-", "begin X, end X before, begin Y after, end Y"},
        {"select:X mode:4 open:A", "begin X, end X, begin A"},
        {"replace:Y mode:4 reset mode:1", "begin Y, end Y"},
    };
    const std::map<std::string, Animatable*> controllers = {
        {"X", &controllerX}, {"Y", &controllerY}, {"-", nullptr}};
    for (const auto& each : cases) {
        std::istringstream actions(each.actions);
        for (std::string action; actions >> action;) {
            const std::string verb = action.substr(0, action.find(':'));
            const std::string object = action.substr(action.find(':') + 1);
            if (verb == "open") panel.openUtility(object == "A" ? utilityA : utilityB);
            if (verb == "mode") panel.setTaskMode(std::stoi(object));
            if (verb == "close") panel.CloseUtility();
            if (verb == "reset") panel.reset();
            if (verb != "select" && verb != "replace") continue;
            selected = controllers.at(object);
            verb == "select" ? panel.selectionChanged() : panel.controllerReplaced();
        }
        EXPECT_EQ(told, each.expected) << each.actions;
        panel.reset();
        told.clear();
        selected = nullptr;
    }
}

TEST_F(Panel, StartScriptLeavesThePanelAsItWas) {
    maxhost::ClassDirectory classes;
    classes.add(&utilityA);
    maxhost::PanelScriptCommands commands(panel, classes);
    maxhost::ScriptEngine scripts(commands);
    panel.setTaskMode(TASK_MODE_MODIFY);
    EXPECT_TRUE(
        scripts.run("panel = getCommandPanelTaskMode();UtilityPanel.OpenUtility 'A';"
                    "setCommandPanelTaskMode mode:panel;"));
    EXPECT_EQ(panel.taskMode(), TASK_MODE_MODIFY);
    EXPECT_EQ(told, "begin A, end A, delete A");
}

TEST_F(Panel, PressedButtonMayCloseItsPage) {
    EXPECT_FALSE(panel.press(IDC_PRESS)) << "no page is open";
    const HWND page =
        panel.rollups().add(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDD_BUTTON_PAGE), closeOnPress,
                            "page", reinterpret_cast<LPARAM>(this), ROLLUP_CAT_STANDARD);
    EXPECT_FALSE(panel.press(9999));
    EXPECT_TRUE(panel.press(IDC_PRESS));
    EXPECT_FALSE(IsWindow(page));
    EXPECT_FALSE(panel.press(IDC_PRESS));
}

}  // namespace
