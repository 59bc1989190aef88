#include "maxhost/win32/WindowTable.h"

#include <algorithm>

namespace maxhost::win32 {

/// Lives as long as the process: a library's last code may still ask for its windows.
WindowTable& WindowTable::instance() {
    static WindowTable& table = *new WindowTable;
    return table;
}

HWND WindowTable::create(HWND parent) {
    auto window = std::make_unique<HWND__>();
    const HWND handle = window.get();
    handle->parent = parent;
    windows.emplace(handle, std::move(window));
    if (parent != nullptr) parent->children.push_back(handle);
    return handle;
}

void WindowTable::destroy(HWND window) {
    if (!contains(window) || window->closing) return;
    window->closing = true;  // its procedure may try to destroy it again
    if (window->procedure != nullptr) window->procedure(window, WM_DESTROY, 0, 0);
    while (contains(window) && !window->children.empty()) {
        const HWND child = window->children.back();
        window->children.pop_back();
        destroy(child);
    }
    if (!contains(window)) return;
    if (contains(window->parent)) {
        auto& siblings = window->parent->children;
        siblings.erase(std::remove(siblings.begin(), siblings.end(), window), siblings.end());
    }
    windows.erase(window);
}

}  // namespace maxhost::win32
