#include <windows.h>

extern "C" __declspec(dllexport) int deeperNumber() {
    return 41;
}
