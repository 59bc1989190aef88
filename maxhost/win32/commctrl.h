#pragma once
// The one common-controls call that plug-ins make. There are no such controls here, so it has nothing to
// prepare.

#include <windows.h>

#pragma GCC visibility push(default)
extern "C" {
void WINAPI InitCommonControls();
}
#pragma GCC visibility pop
