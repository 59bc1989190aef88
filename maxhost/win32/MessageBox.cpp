#include <windows.h>

#include <ostream>

#include "maxhost/win32/SessionState.h"

using maxhost::win32::SessionState;
using maxhost::win32::ShownMessageBox;

namespace {

const char* iconWord(UINT type) {
    switch (type & 0xf0u) {
        case MB_ICONERROR:
            return "error";
        case MB_ICONQUESTION:
            return "question";
        case MB_ICONWARNING:
            return "warning";
        case MB_ICONINFORMATION:
            return "information";
        default:
            return "message";
    }
}

int firstButton(UINT type) {
    const UINT buttons = type & 0x0fu;
    return buttons == MB_YESNO || buttons == MB_YESNOCANCEL ? IDYES : IDOK;
}

void print(const ShownMessageBox& box, std::ostream& stream) {
    stream << "[" << iconWord(box.type) << "] " << box.caption << "\n    ";
    for (const char letter : box.text) {
        stream << letter;
        if (letter == '\n') stream << "    ";
    }
    stream << std::endl;
}

}  // namespace

int WINAPI MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type) {
    SessionState& state = SessionState::instance();
    ShownMessageBox box{owner, text == nullptr ? "" : text, caption == nullptr ? "Error" : caption, type,
                        firstButton(type)};
    if (!state.answers.empty()) {
        box.answer = state.answers.front();
        state.answers.pop_front();
    }
    state.messageBoxes.push_back(box);
    if (state.printTo != nullptr) print(box, *state.printTo);
    return box.answer;
}
