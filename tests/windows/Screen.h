#pragma once

#include <windows.h>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "maxhost/Picture.h"

namespace screen {

/// Lets windows work until `done` says so. False when that takes longer than any honest program would need.
inline bool workUntil(const std::function<bool()>& done) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!done()) {
        if (std::chrono::steady_clock::now() > end) return false;
        for (MSG message; PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != FALSE;) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
        Sleep(5);
    }
    return true;
}

inline void workFor(DWORD milliseconds) {
    const DWORD start = GetTickCount();
    workUntil([=] { return GetTickCount() - start >= milliseconds; });
}

/// Moves the mouse onto the window's middle and clicks, as a person would; what comes of it follows when
/// messages are handled.
inline void click(HWND window) {
    RECT place = {0, 0, 0, 0};
    GetWindowRect(window, &place);
    SetCursorPos((place.left + place.right) / 2, (place.top + place.bottom) / 2);
    INPUT press[2] = {};
    for (INPUT& input : press)
        input.type = INPUT_MOUSE;
    press[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
    press[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
    SendInput(2, press, sizeof(INPUT));
}

/// What the screen shows where the window is.
inline maxhost::Picture pictureOf(HWND window) {
    RECT place = {0, 0, 0, 0};
    GetWindowRect(window, &place);
    const int width = static_cast<int>(place.right - place.left);
    const int height = static_cast<int>(place.bottom - place.top);
    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, screen, static_cast<int>(place.left), static_cast<int>(place.top),
           SRCCOPY);
    SelectObject(memory, before);

    BITMAPINFO layout = {};
    layout.bmiHeader.biSize = sizeof layout.bmiHeader;
    layout.bmiHeader.biWidth = width;
    layout.bmiHeader.biHeight = -height;  // rows from the top
    layout.bmiHeader.biPlanes = 1;
    layout.bmiHeader.biBitCount = 32;
    std::vector<unsigned char> pixels(static_cast<std::size_t>(width) * height * 4);
    GetDIBits(memory, bitmap, 0, static_cast<UINT>(height), pixels.data(), &layout, DIB_RGB_COLORS);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);

    maxhost::Picture picture(width, height);
    const unsigned char* from = pixels.data();
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x, from += 4) {
            for (int channel = 0; channel < 3; ++channel)
                picture.pixel(x, y)[channel] = from[2 - channel];
        }
    }
    return picture;
}

inline std::string textOf(HWND window) {
    char text[1024] = {};
    GetWindowTextA(window, text, sizeof text);
    return text;
}

}  // namespace screen
