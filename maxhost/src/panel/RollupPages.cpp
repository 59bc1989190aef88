#include "maxhost/src/panel/RollupPages.h"

#include <algorithm>

#include "maxhost/src/undo/Faults.h"

namespace maxhost {

namespace {

constexpr int kHeadingHeight = 18;

int heightOf(HWND window) {
    RECT client = {0, 0, 0, 0};
    GetClientRect(window, &client);
    return static_cast<int>(client.bottom - client.top);
}

int widthOf(HWND window) {
    RECT client = {0, 0, 0, 0};
    GetClientRect(window, &client);
    return static_cast<int>(client.right - client.left);
}

}  // namespace

RollupPages::RollupPages(HostWindow& mainWindow) : main(mainWindow) {}

RollupPages::~RollupPages() {
    removeAll();
    if (IsWindow(frame) != FALSE) DestroyWindow(frame);
}

/// Pages are child dialogs, so they need a window to stand in.
HWND RollupPages::ensureFrame() {
    if (IsWindow(frame) == FALSE) {
        const HWND parent = main.handle();
        frame = CreateWindowExA(0, "STATIC", "Command panel", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0,
                                widthOf(parent), heightOf(parent), parent, nullptr, nullptr, nullptr);
    }
    return frame;
}

HWND RollupPages::add(HINSTANCE library, const TCHAR* dialog, DLGPROC procedure, const TCHAR* title,
                      LPARAM param, int category) {
    const std::string name = title == nullptr ? "" : title;
    const HWND window = CreateDialogParamA(library, dialog, ensureFrame(), procedure, param);
    if (window == nullptr) {
        Faults::instance().record("rollup page \"" + name + "\": no dialog, error " +
                                  std::to_string(GetLastError()));
        return nullptr;
    }
    const HWND heading = CreateWindowExA(0, "STATIC", name.c_str(), WS_CHILD | WS_VISIBLE | WS_BORDER, 0, 0,
                                         0, 0, frame, nullptr, nullptr, nullptr);
    const auto below = std::upper_bound(pages.begin(), pages.end(), category,
                                        [](int value, const Page& page) { return value < page.category; });
    pages.insert(below, Page{window, heading, name, category});
    layOut();
    ShowWindow(window, SW_SHOW);
    return window;
}

void RollupPages::remove(HWND page) {
    const auto found =
        std::find_if(pages.begin(), pages.end(), [page](const Page& each) { return each.window == page; });
    if (found == pages.end()) return;
    const Page removed = *found;
    pages.erase(found);  // first: the page's procedure may ask for the pages while it is destroyed
    DestroyWindow(removed.window);
    DestroyWindow(removed.heading);
    layOut();
}

void RollupPages::removeAll() {
    while (!pages.empty())
        remove(pages.back().window);
}

std::vector<std::string> RollupPages::titles() const {
    std::vector<std::string> result;
    for (const Page& page : pages)
        result.push_back(page.title);
    return result;
}

HWND RollupPages::pageWith(int controlId) const {
    for (const Page& page : pages) {
        if (GetDlgItem(page.window, controlId) != nullptr) return page.window;
    }
    return nullptr;
}

void RollupPages::layOut() {
    int top = 0;
    for (const Page& page : pages) {
        MoveWindow(page.heading, 0, top, widthOf(frame), kHeadingHeight, TRUE);
        top += kHeadingHeight;
        MoveWindow(page.window, 0, top, widthOf(page.window), heightOf(page.window), TRUE);
        top += heightOf(page.window);
    }
}

}  // namespace maxhost
