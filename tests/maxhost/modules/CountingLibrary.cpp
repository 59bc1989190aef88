// A library that needs another one, notes when it is entered, and keeps a count that starts anew with each
// load.

#include "tests/maxhost/modules/Journal.h"

extern "C" __declspec(dllimport) int dependencyNumber();

extern "C" __declspec(dllexport) int nextCount() {
    static int count = dependencyNumber();
    return ++count;
}

BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID) {
    char path[MAX_PATH];
    const bool knowsItself = GetModuleFileNameA(module, path, MAX_PATH) > 0;
    note(reason == DLL_PROCESS_ATTACH && knowsItself ? "attach" : "detach");
    HKEY refusal = nullptr;
    if (RegOpenKeyExA(HKEY_CURRENT_USER, "Test\\Refuse", 0, KEY_READ, &refusal) != ERROR_SUCCESS) return TRUE;
    RegCloseKey(refusal);
    return FALSE;
}
