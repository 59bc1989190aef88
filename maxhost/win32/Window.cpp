// Windows in general: what they hold and the messages that all of them answer.

#include <windows.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <utility>

#include "maxhost/win32/LastError.h"
#include "maxhost/win32/WindowTable.h"

using maxhost::win32::setLastError;
using maxhost::win32::WindowTable;

namespace {

constexpr DWORD kUnknownClass = 1407;

bool isWindow(HWND window) {
    if (WindowTable::instance().contains(window)) return true;
    setLastError(ERROR_INVALID_WINDOW_HANDLE, "no such window");
    return false;
}

std::string upperCase(std::string text) {
    for (char& letter : text)
        letter = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
    return text;
}

/// Copies as much as fits with a closing zero; returns the letters copied.
int copyText(const std::string& text, char* buffer, std::size_t size) {
    if (buffer == nullptr || size == 0) return 0;
    const std::size_t length = std::min(text.size(), size - 1);
    std::memcpy(buffer, text.data(), length);
    buffer[length] = '\0';
    return static_cast<int>(length);
}

LRESULT click(HWND button) {
    if (button->className != "BUTTON") return 0;
    const WPARAM command = MAKEWPARAM(button->id, BN_CLICKED);
    SendMessageA(button->parent, WM_COMMAND, command, reinterpret_cast<LPARAM>(button));
    return 0;
}

LRESULT defaultAnswer(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SETTEXT:
            window->text = lParam == 0 ? "" : reinterpret_cast<const char*>(lParam);
            return TRUE;
        case WM_GETTEXT:
            return copyText(window->text, reinterpret_cast<char*>(lParam), wParam);
        case WM_GETTEXTLENGTH:
            return static_cast<LRESULT>(window->text.size());
        case BM_CLICK:
            return click(window);
        default:
            return 0;
    }
}

/// The field behind an index; null for an unknown one.
LONG_PTR* field(HWND window, int index) {
    switch (index) {
        case GWLP_USERDATA:
            return &window->userData;
        case GWLP_ID:
            return &window->id;
        case DWLP_MSGRESULT:
            return window->procedure == nullptr ? nullptr : &window->messageResult;
        case DWLP_USER:
            return window->procedure == nullptr ? nullptr : &window->dialogData;
        default:
            return nullptr;
    }
}

}  // namespace

HWND WINAPI CreateWindowExA(DWORD, LPCSTR className, LPCSTR text, DWORD style, int x, int y, int width,
                            int height, HWND parent, HMENU menuOrId, HINSTANCE module, LPVOID) {
    const std::string name = upperCase(IS_INTRESOURCE(className) ? "" : className);
    if (name != "STATIC" && name != "BUTTON" && name != "EDIT") {
        setLastError(kUnknownClass, "no window class " + name);
        return nullptr;
    }
    if (parent != nullptr && !isWindow(parent)) return nullptr;
    if (parent == nullptr && (style & WS_CHILD) != 0) {
        setLastError(ERROR_TLW_WITH_WSCHILD, "a child window needs a parent");
        return nullptr;
    }
    const HWND window = WindowTable::instance().create(parent);
    window->className = name;
    window->text = text == nullptr ? "" : text;
    window->style = style;
    window->box = RECT{x, y, x + width, y + height};
    window->module = module;
    if ((style & WS_CHILD) != 0) window->id = reinterpret_cast<LONG_PTR>(menuOrId);
    return window;
}

BOOL WINAPI DestroyWindow(HWND window) {
    if (!isWindow(window)) return FALSE;
    WindowTable::instance().destroy(window);
    return TRUE;
}

BOOL WINAPI IsWindow(HWND window) {
    return WindowTable::instance().contains(window) ? TRUE : FALSE;
}

BOOL WINAPI ShowWindow(HWND window, int command) {
    if (!isWindow(window)) return FALSE;
    const BOOL wasVisible = (window->style & WS_VISIBLE) != 0 ? TRUE : FALSE;
    window->style = command == SW_HIDE ? window->style & ~WS_VISIBLE : window->style | WS_VISIBLE;
    return wasVisible;
}

BOOL WINAPI IsWindowVisible(HWND window) {
    if (!isWindow(window)) return FALSE;
    for (HWND each = window; each != nullptr; each = each->parent) {
        if ((each->style & WS_VISIBLE) == 0) return FALSE;
    }
    return TRUE;
}

BOOL WINAPI GetClientRect(HWND window, LPRECT rectangle) {
    if (!isWindow(window) || rectangle == nullptr) return FALSE;
    *rectangle = RECT{0, 0, window->box.right - window->box.left, window->box.bottom - window->box.top};
    return TRUE;
}

BOOL WINAPI MoveWindow(HWND window, int x, int y, int width, int height, BOOL) {
    if (!isWindow(window)) return FALSE;
    window->box = RECT{x, y, x + width, y + height};
    return TRUE;
}

HWND WINAPI GetParent(HWND window) {
    return isWindow(window) ? window->parent : nullptr;
}

BOOL WINAPI SetWindowTextA(HWND window, LPCSTR text) {
    if (!isWindow(window)) return FALSE;
    SendMessageA(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
    return TRUE;
}

int WINAPI GetWindowTextA(HWND window, LPSTR buffer, int size) {
    if (buffer != nullptr && size > 0) *buffer = '\0';
    if (!isWindow(window) || size <= 0) return 0;
    const WPARAM room = static_cast<WPARAM>(size);
    return static_cast<int>(SendMessageA(window, WM_GETTEXT, room, reinterpret_cast<LPARAM>(buffer)));
}

/// A dialog's procedure is asked first; what it does not handle gets the answer that every window gives.
LRESULT WINAPI SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (!isWindow(window)) return 0;
    if (window->procedure != nullptr) {
        window->messageResult = 0;
        const INT_PTR handled = window->procedure(window, message, wParam, lParam);
        if (message == WM_INITDIALOG) return handled;
        if (!WindowTable::instance().contains(window)) return 0;  // the procedure closed it
        if (handled != FALSE) return window->messageResult;
    }
    return defaultAnswer(window, message, wParam, lParam);
}

LONG_PTR WINAPI GetWindowLongPtrA(HWND window, int index) {
    if (!isWindow(window)) return 0;
    if (index == GWL_STYLE) return static_cast<LONG_PTR>(window->style);
    if (index == GWLP_HINSTANCE) return reinterpret_cast<LONG_PTR>(window->module);
    if (index == DWLP_DLGPROC) return reinterpret_cast<LONG_PTR>(window->procedure);
    const LONG_PTR* const value = field(window, index);
    if (value == nullptr) setLastError(ERROR_INVALID_PARAMETER, "the window has no such field");
    return value == nullptr ? 0 : *value;
}

LONG_PTR WINAPI SetWindowLongPtrA(HWND window, int index, LONG_PTR value) {
    if (!isWindow(window)) return 0;
    LONG_PTR* const place = field(window, index);
    if (place == nullptr) {
        setLastError(ERROR_INVALID_PARAMETER, "the window has no such field that can be set");
        return 0;
    }
    return std::exchange(*place, value);
}
