#pragma once

#include <windows.h>

/// Notes what happens to a test library where it outlives the library: as a message box of the session.
inline void note(const char* event) {
    MessageBoxA(nullptr, event, "journal", MB_OK);
}
