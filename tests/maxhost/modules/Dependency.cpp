#include <windows.h>

extern "C" __declspec(dllimport) int deeperNumber();

extern "C" __declspec(dllexport) int dependencyNumber() {
    return deeperNumber() - 1;
}
