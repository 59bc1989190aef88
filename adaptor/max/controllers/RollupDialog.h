#pragma once

#include "adaptor/max/Host.h"

namespace qvo::zmx::adaptor::max {

class TransformControl;

/// Adds the motion panel's page for `controller`: one button, which converts it to the host's own controller.
/// The page's window; null when the host cannot make it.
HWND openRollup(Interface& ip, TransformControl& controller);

/// Makes the page's button do nothing: its controller is going away.
void detachRollup(HWND page);

/// The page's dialog procedure. The window's user data is the controller that the button converts, or null.
INT_PTR CALLBACK rollupDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace qvo::zmx::adaptor::max
