#include "adaptor/max/controllers/RollupDialog.h"

#include "adaptor/max/controllers/Conversion.h"
#include "adaptor/max/controllers/TransformControl.h"
#include "adaptor/max/plugin/ModuleInstance.h"
#include "resources/resource.h"

namespace qvo::zmx::adaptor::max {

HWND openRollup(Interface& ip, TransformControl& controller) {
    char title[] = "Zorva Longfin MoCap";
    return ip.AddRollupPage(moduleInstance(), MAKEINTRESOURCEA(IDD_CONTROLLER_PAGE), rollupDialogProc, title,
                            reinterpret_cast<LPARAM>(&controller), 0, ROLLUP_CAT_STANDARD);
}

void detachRollup(HWND page) {
    SetWindowLongPtrA(page, GWLP_USERDATA, 0);
}

INT_PTR CALLBACK rollupDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrA(dialog, GWLP_USERDATA, static_cast<LONG_PTR>(lParam));
        return TRUE;
    }
    if (message != WM_COMMAND) return FALSE;
    if (LOWORD(wParam) == IDC_CONVERT_TO_PRS) {
        // Taken out first: the conversion rebuilds the panel, and this window may not outlive it.
        auto* const controller =
            reinterpret_cast<TransformControl*>(SetWindowLongPtrA(dialog, GWLP_USERDATA, 0));
        if (controller) convertToPRS(*controller);
    }
    return TRUE;
}

}  // namespace qvo::zmx::adaptor::max
