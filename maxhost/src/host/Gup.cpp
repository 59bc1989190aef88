#include <gup.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "maxhost/src/host/Host.h"

using maxhost::Host;
using maxhost::Node;
using maxhost::Scene;

HINSTANCE GUP::MaxInst() {
    return GetModuleHandleA(nullptr);
}

HWND GUP::MaxWnd() {
    return Host::instance().mainWindow().handle();
}

DllDir* GUP::MaxDllDir() {
    return nullptr;
}

Interface* GUP::Max() {
    return GetCOREInterface();
}

BitmapManager* GUP::Bmi() {
    return nullptr;
}

int GUP::EnumTree(ITreeEnumProc* proc) {
    if (proc == nullptr) return 0;
    Scene& scene = Host::instance().scene();
    // By handle: the callback may delete nodes.
    std::vector<ULONG> handles;
    for (Node* node : scene.nodesInOrder())
        handles.push_back(node->GetHandle());
    Node* ignored = nullptr;
    for (const ULONG handle : handles) {
        Node* const node = scene.findByHandle(handle);
        if (node == nullptr || (ignored != nullptr && ignored->isAncestorOrSelf(*node))) continue;
        const int answer = proc->callback(node);
        if (answer == TREE_ABORT) return 0;
        ignored = answer == TREE_IGNORECHILDREN ? scene.findByHandle(handle) : nullptr;
    }
    return 1;
}

bool GUP::ExecuteStringScript(TCHAR* string) {
    return string != nullptr && Host::instance().runScript(string);
}

bool GUP::ExecuteFileScript(TCHAR* file) {
    if (file == nullptr) return false;
    std::ifstream stream(file, std::ios::binary);
    const std::string text((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
    return stream.good() && Host::instance().runScript(text);
}

GUP* OpenGupPlugIn(Class_ID classID) {
    return Host::instance().utilities().find(classID);
}
