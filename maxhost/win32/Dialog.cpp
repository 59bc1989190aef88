// Dialogs made from a library's resource script, and the calls that reach a dialog's controls by their
// number.

#include <commctrl.h>
#include <windows.h>

#include "maxhost/win32/LastError.h"
#include "maxhost/win32/ModuleResources.h"
#include "maxhost/win32/WindowTable.h"

using maxhost::win32::ControlTemplate;
using maxhost::win32::DialogBox;
using maxhost::win32::DialogTemplate;
using maxhost::win32::setLastError;
using maxhost::win32::WindowTable;

namespace {

/// Dialog units to pixels with the usual 8 point dialog font, whose letters average 6 by 13.
RECT pixels(const DialogBox& box) {
    const LONG left = box.x * 6 / 4;
    const LONG top = box.y * 13 / 8;
    return RECT{left, top, left + box.width * 6 / 4, top + box.height * 13 / 8};
}

const DialogTemplate* findTemplate(HINSTANCE module, LPCSTR name) {
    const auto* const script = maxhost::win32::resourceScript(module);
    if (script == nullptr) return nullptr;
    const int id = static_cast<int>(reinterpret_cast<ULONG_PTR>(name));
    const DialogTemplate* const dialog = IS_INTRESOURCE(name) ? script->dialog(id) : nullptr;
    if (dialog == nullptr) setLastError(ERROR_RESOURCE_NAME_NOT_FOUND, "no dialog with this number");
    return dialog;
}

void addControl(HWND dialog, const ControlTemplate& from) {
    const HWND control = WindowTable::instance().create(dialog);
    control->className = from.className;
    control->text = from.text;
    control->style = from.style;
    control->box = pixels(from.box);
    control->id = from.id;
    control->module = dialog->module;
}

HWND firstTabStop(HWND dialog) {
    for (const HWND control : dialog->children) {
        if ((control->style & (WS_TABSTOP | WS_VISIBLE)) == (WS_TABSTOP | WS_VISIBLE)) return control;
    }
    return nullptr;
}

}  // namespace

HWND WINAPI CreateDialogParamA(HINSTANCE module, LPCSTR name, HWND parent, DLGPROC procedure, LPARAM param) {
    const DialogTemplate* const from = findTemplate(module, name);
    if (from == nullptr) return nullptr;
    if (parent == nullptr && (from->style & WS_CHILD) != 0) {
        setLastError(ERROR_TLW_WITH_WSCHILD, "a child dialog needs a parent");
        return nullptr;
    }
    if (parent != nullptr && IsWindow(parent) == FALSE) {
        setLastError(ERROR_INVALID_WINDOW_HANDLE, "no such parent window");
        return nullptr;
    }
    const HWND dialog = WindowTable::instance().create(parent);
    dialog->className = "#32770";
    dialog->text = from->caption;
    dialog->style = from->style & ~WS_VISIBLE;
    dialog->box = pixels(from->box);
    dialog->module = module;
    dialog->procedure = procedure;
    for (const ControlTemplate& control : from->controls)
        addControl(dialog, control);
    SendMessageA(dialog, WM_INITDIALOG, reinterpret_cast<WPARAM>(firstTabStop(dialog)), param);
    if (IsWindow(dialog) == FALSE) return nullptr;  // the procedure closed it
    if ((from->style & WS_VISIBLE) != 0) ShowWindow(dialog, SW_SHOW);
    return dialog;
}

HWND WINAPI GetDlgItem(HWND dialog, int id) {
    if (IsWindow(dialog) != FALSE) {
        for (const HWND control : dialog->children) {
            if (control->id == id) return control;
        }
    }
    setLastError(ERROR_CONTROL_ID_NOT_FOUND, "no control " + std::to_string(id));
    return nullptr;
}

int WINAPI GetDlgCtrlID(HWND control) {
    return static_cast<int>(GetWindowLongPtrA(control, GWLP_ID));
}

BOOL WINAPI SetDlgItemTextA(HWND dialog, int id, LPCSTR text) {
    return SetWindowTextA(GetDlgItem(dialog, id), text);
}

UINT WINAPI GetDlgItemTextA(HWND dialog, int id, LPSTR buffer, int size) {
    return static_cast<UINT>(GetWindowTextA(GetDlgItem(dialog, id), buffer, size));
}

void WINAPI InitCommonControls() {}
