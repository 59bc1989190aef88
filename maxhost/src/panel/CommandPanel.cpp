#include "maxhost/src/panel/CommandPanel.h"

#include <utility>

namespace maxhost {

CommandPanel::CommandPanel(IObjParam* host, HostWindow& mainWindow, MotionController motionController)
    : ip(host), pages(mainWindow), selectedController(std::move(motionController)) {}

CommandPanel::~CommandPanel() {
    reset();
}

bool CommandPanel::setTaskMode(int newMode) {
    if (newMode < TASK_MODE_CREATE || newMode > TASK_MODE_UTILITY) return false;
    if (newMode == mode) return true;
    mode = newMode;
    if (mode != TASK_MODE_UTILITY) CloseUtility();
    updateMotion();
    return true;
}

bool CommandPanel::openUtility(ClassDesc& utilityClass) {
    setTaskMode(TASK_MODE_UTILITY);
    if (utility != nullptr && utilityDescriptor == &utilityClass) return true;
    CloseUtility();
    utility = static_cast<UtilityObj*>(utilityClass.Create(FALSE));
    if (utility == nullptr) return false;
    utilityDescriptor = &utilityClass;
    utility->BeginEditParams(ip, this);
    return true;
}

/// The utility counts as closed before it is told: it may ask for closing again while it ends.
void CommandPanel::CloseUtility() {
    UtilityObj* const closing = std::exchange(utility, nullptr);
    utilityDescriptor = nullptr;
    if (closing == nullptr) return;
    closing->EndEditParams(ip, this);
    closing->DeleteThis();
}

void CommandPanel::selectionChanged() {
    if (utility != nullptr) utility->SelectionSetChanged(ip, this);
    updateMotion();
}

void CommandPanel::updateMotion() {
    editMotion(mode == TASK_MODE_MOTION && selectedController ? selectedController() : nullptr);
}

void CommandPanel::editMotion(Animatable* controller) {
    if (controller == edited) return;
    Animatable* const previous = std::exchange(edited, controller);
    if (previous != nullptr) previous->EndEditParams(ip, END_EDIT_REMOVEUI, controller);
    if (edited != nullptr) edited->BeginEditParams(ip, BEGIN_EDIT_MOTION, previous);
}

void CommandPanel::reset() {
    CloseUtility();
    editMotion(nullptr);
    pages.removeAll();
    mode = TASK_MODE_CREATE;
}

/// The command is sent to the page itself: a click on the button would also need the page to be the active
/// window.
bool CommandPanel::press(int controlId) {
    const HWND page = pages.pageWith(controlId);
    if (page == nullptr) return false;
    const HWND control = GetDlgItem(page, controlId);
    SendMessageA(page, WM_COMMAND, MAKEWPARAM(controlId, BN_CLICKED), reinterpret_cast<LPARAM>(control));
    return true;
}

}  // namespace maxhost
