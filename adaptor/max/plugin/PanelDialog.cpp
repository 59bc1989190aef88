#include "adaptor/max/plugin/PanelDialog.h"

#include <array>
#include <string>

#include "adaptor/max/Boundary.h"
#include "adaptor/max/plugin/UtilityManager.h"
#include "adaptor/max/services/MaxAdaptorInterface.h"

namespace qvo::zmx::adaptor::max {

namespace {

void showPage(HWND dialog) {
    // The manager does not know the page yet: the host creates it before it hands out its handle.
    const char* const text = UtilityManager::instance().core ? kDetachText : kAttachText;
    SetDlgItemTextA(dialog, IDC_ATTACH_CORE, text);
    ShowWindow(dialog, SW_SHOW);
}

void startStudio() {
    core::CoreObject* const core = UtilityManager::instance().core;
    if (core) {
        guarded("openStudio", [&] { core->openStudio(GetCOREInterface()->GetMAXHWnd()); });
        return;
    }
    MessageBoxA(
        nullptr,
        "Unable to bind Core routines. Zorva Kestrel Studio is unable to start.\nPlease re-install the "
        "software and contact Zorva Animations in case the problem persists.",
        "Zorva Kestrel Tools", MB_OK | MB_ICONERROR);
}

void attachOrDetach(HWND dialog) {
    std::array<char, 1025> text{};
    GetDlgItemTextA(dialog, IDC_ATTACH_CORE, text.data(), static_cast<int>(text.size()));

    UtilityManager& manager = UtilityManager::instance();
    if (text.data() == std::string(kDetachText)) {
        manager.detachCore();
        MaxAdaptorInterface::instance().flushHostUndo();
        return;
    }
    MaxAdaptorInterface::instance().flushHostUndo();
    manager.loadCore();
    // Whatever came of it: a core that attached takes its nodes back, and without one this does nothing.
    MaxAdaptorInterface::instance().gatherNodes();
}

}  // namespace

INT_PTR CALLBACK panelDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM /*lParam*/) {
    if (message == WM_INITDIALOG) {
        showPage(dialog);
        return TRUE;
    }
    if (message != WM_COMMAND) return FALSE;

    switch (LOWORD(wParam)) {
        case IDC_START_STUDIO:
            startStudio();
            return TRUE;
        case IDC_ATTACH_CORE:
            guarded("attachOrDetach", [&] { attachOrDetach(dialog); });
            return TRUE;
        default:
            return FALSE;
    }
}

}  // namespace qvo::zmx::adaptor::max
