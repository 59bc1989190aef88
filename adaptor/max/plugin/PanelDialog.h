#pragma once

#include "adaptor/max/Host.h"
#include "resources/resource.h"

namespace qvo::zmx::adaptor::max {

/// The texts of the attach button (control 1074). The page that ships has no such button; a page that has one
/// works. The text decides what a press does.
inline constexpr char kAttachText[] = "Attach";
inline constexpr char kDetachText[] = "Detach";

/// Dialog procedure of the utility panel's page: the start button, and the attach button where there is one.
INT_PTR CALLBACK panelDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace qvo::zmx::adaptor::max
