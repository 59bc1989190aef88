#pragma once
// The Windows types and calls that the plug-in and its host make, for builds on other systems. Same names,
// same sizes (LLP64: a LONG or DWORD has 32 bits), same results; only what somebody here calls is declared.
// Texts are narrow: the A forms are declared and no macro maps a plain name to them.

#include <cstddef>
#include <cstdint>

// Compiler words of Windows sources. A library that defines DllMain exports it by the declaration below.
#define CALLBACK
#define WINAPI
#define APIENTRY
#define WIN32_DECLSPEC_dllexport __attribute__((visibility("default")))
#define WIN32_DECLSPEC_dllimport
#define __declspec(word) WIN32_DECLSPEC_##word

// ---- types ----

typedef int BOOL;
typedef unsigned char BYTE;
typedef std::uint16_t WORD;
typedef std::uint32_t DWORD;
typedef std::int32_t INT;
typedef std::uint32_t UINT;
typedef std::int32_t LONG;
typedef std::uint32_t ULONG;
typedef char CHAR;
typedef char TCHAR;  // narrow builds only
typedef void* HANDLE;
typedef void* LPVOID;
typedef const void* LPCVOID;
typedef char* LPSTR;
typedef const char* LPCSTR;
typedef BYTE* LPBYTE;
typedef DWORD* LPDWORD;

typedef std::intptr_t INT_PTR;
typedef std::uintptr_t UINT_PTR;
typedef std::intptr_t LONG_PTR;
typedef std::uintptr_t ULONG_PTR;
typedef ULONG_PTR DWORD_PTR;
typedef ULONG_PTR SIZE_T;
typedef UINT_PTR WPARAM;
typedef LONG_PTR LPARAM;
typedef LONG_PTR LRESULT;
typedef DWORD COLORREF;  // 0x00BBGGRR

typedef struct HINSTANCE__* HINSTANCE;
typedef HINSTANCE HMODULE;
typedef HMODULE* PHMODULE;
typedef struct HWND__* HWND;
typedef struct HMENU__* HMENU;
typedef struct HICON__* HICON;
typedef HICON HCURSOR;
typedef struct HDC__* HDC;
typedef struct HKEY__* HKEY;
typedef HKEY* PHKEY;
typedef struct HRSRC__* HRSRC;
typedef HANDLE HGLOBAL;
typedef DWORD REGSAM;
typedef LONG LSTATUS;
typedef struct _SECURITY_ATTRIBUTES SECURITY_ATTRIBUTES;
typedef SECURITY_ATTRIBUTES* LPSECURITY_ATTRIBUTES;

typedef INT_PTR(WINAPI* FARPROC)();
typedef INT_PTR(CALLBACK* DLGPROC)(HWND, UINT, WPARAM, LPARAM);

struct POINT {
    LONG x;
    LONG y;
};

struct SIZE {
    LONG cx;
    LONG cy;
};

struct RECT {
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};
typedef RECT* LPRECT;

static_assert(sizeof(DWORD) == 4 && sizeof(LONG) == 4 && sizeof(ULONG) == 4, "Windows is LLP64");
static_assert(sizeof(LPARAM) == sizeof(void*), "pointers travel in messages");

#ifndef FALSE
#define FALSE 0
#endif
#ifndef TRUE
#define TRUE 1
#endif
#ifndef NULL
#define NULL 0
#endif

#define MAX_PATH 260

#define LOWORD(value) (static_cast<WORD>(static_cast<DWORD_PTR>(value) & 0xffff))
#define HIWORD(value) (static_cast<WORD>((static_cast<DWORD_PTR>(value) >> 16) & 0xffff))
#define MAKELONG(low, high) \
    (static_cast<LONG>(static_cast<WORD>(low) | (static_cast<DWORD>(static_cast<WORD>(high)) << 16)))
#define MAKEWPARAM(low, high) (static_cast<WPARAM>(static_cast<DWORD>(MAKELONG(low, high))))
#define MAKELPARAM(low, high) (static_cast<LPARAM>(static_cast<DWORD>(MAKELONG(low, high))))
#define MAKEINTRESOURCEA(id) (reinterpret_cast<LPSTR>(static_cast<ULONG_PTR>(static_cast<WORD>(id))))
#define MAKEINTRESOURCE MAKEINTRESOURCEA
#define IS_INTRESOURCE(name) ((reinterpret_cast<ULONG_PTR>(name) >> 16) == 0)

// ---- constants ----

#define ERROR_SUCCESS 0
#define ERROR_FILE_NOT_FOUND 2
#define ERROR_PATH_NOT_FOUND 3
#define ERROR_ACCESS_DENIED 5
#define ERROR_INVALID_HANDLE 6
#define ERROR_INVALID_PARAMETER 87
#define ERROR_INSUFFICIENT_BUFFER 122
#define ERROR_MOD_NOT_FOUND 126
#define ERROR_PROC_NOT_FOUND 127
#define ERROR_ALREADY_EXISTS 183
#define ERROR_MORE_DATA 234
#define ERROR_DLL_INIT_FAILED 1114
#define ERROR_INVALID_WINDOW_HANDLE 1400
#define ERROR_TLW_WITH_WSCHILD 1406
#define ERROR_CONTROL_ID_NOT_FOUND 1421
#define ERROR_RESOURCE_DATA_NOT_FOUND 1812
#define ERROR_RESOURCE_TYPE_NOT_FOUND 1813
#define ERROR_RESOURCE_NAME_NOT_FOUND 1814

#define GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT 0x00000002
#define GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS 0x00000004

#define DLL_PROCESS_DETACH 0
#define DLL_PROCESS_ATTACH 1
#define DLL_THREAD_ATTACH 2
#define DLL_THREAD_DETACH 3

#define FORMAT_MESSAGE_IGNORE_INSERTS 0x00000200
#define FORMAT_MESSAGE_FROM_SYSTEM 0x00001000

#define HKEY_CURRENT_USER (reinterpret_cast<HKEY>(static_cast<ULONG_PTR>(0x80000001u)))
#define HKEY_LOCAL_MACHINE (reinterpret_cast<HKEY>(static_cast<ULONG_PTR>(0x80000002u)))
#define KEY_QUERY_VALUE 0x0001
#define KEY_READ 0x20019
#define KEY_WOW64_64KEY 0x0100
#define KEY_WOW64_32KEY 0x0200
#define REG_NONE 0
#define REG_SZ 1
#define REG_DWORD 4

#define WM_DESTROY 0x0002
#define WM_SETTEXT 0x000C
#define WM_GETTEXT 0x000D
#define WM_GETTEXTLENGTH 0x000E
#define WM_CLOSE 0x0010
#define WM_INITDIALOG 0x0110
#define WM_COMMAND 0x0111
#define WM_APP 0x8000
#define BM_CLICK 0x00F5
#define BN_CLICKED 0

#define GWL_STYLE (-16)
#define GWLP_HINSTANCE (-6)
#define GWLP_ID (-12)
#define GWLP_USERDATA (-21)
#define DWLP_MSGRESULT 0
#define DWLP_DLGPROC 8
#define DWLP_USER 16

#define SW_HIDE 0
#define SW_SHOWNORMAL 1
#define SW_SHOWNOACTIVATE 4
#define SW_SHOW 5

#define WS_OVERLAPPED 0x00000000u
#define WS_POPUP 0x80000000u
#define WS_CHILD 0x40000000u
#define WS_VISIBLE 0x10000000u
#define WS_DISABLED 0x08000000u
#define WS_CLIPCHILDREN 0x02000000u
#define WS_BORDER 0x00800000u
#define WS_CAPTION 0x00C00000u
#define WS_SYSMENU 0x00080000u
#define WS_GROUP 0x00020000u
#define WS_TABSTOP 0x00010000u
#define WS_OVERLAPPEDWINDOW 0x00CF0000u

#define MB_OK 0x00000000u
#define MB_OKCANCEL 0x00000001u
#define MB_YESNOCANCEL 0x00000003u
#define MB_YESNO 0x00000004u
#define MB_ICONERROR 0x00000010u
#define MB_ICONQUESTION 0x00000020u
#define MB_ICONWARNING 0x00000030u
#define MB_ICONINFORMATION 0x00000040u
#define IDOK 1
#define IDCANCEL 2
#define IDYES 6
#define IDNO 7

#define RT_DIALOG MAKEINTRESOURCEA(5)
#define RT_RCDATA MAKEINTRESOURCEA(10)
#define RT_VERSION MAKEINTRESOURCEA(16)
#define RT_MANIFEST MAKEINTRESOURCEA(24)

// ---- calls ----

#pragma GCC visibility push(default)
extern "C" {

/// A library's own entry point, called with its handle after it was loaded and before it is freed.
BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID reserved);

// Libraries
HMODULE WINAPI LoadLibraryA(LPCSTR path);
BOOL WINAPI FreeLibrary(HMODULE module);
FARPROC WINAPI GetProcAddress(HMODULE module, LPCSTR name);
BOOL WINAPI SetDllDirectoryA(LPCSTR folder);
HMODULE WINAPI GetModuleHandleA(LPCSTR path);
/// By address only: the library loaded through LoadLibraryA, or the program, that `address` lies in.
BOOL WINAPI GetModuleHandleExA(DWORD flags, LPCSTR address, PHMODULE module);
DWORD WINAPI GetModuleFileNameA(HMODULE module, LPSTR path, DWORD size);

// Errors
DWORD WINAPI GetLastError();
void WINAPI SetLastError(DWORD error);
DWORD WINAPI FormatMessageA(DWORD flags, LPCVOID source, DWORD error, DWORD language, LPSTR buffer,
                            DWORD size, void* arguments);

// Resources
HRSRC WINAPI FindResourceA(HMODULE module, LPCSTR name, LPCSTR type);
HGLOBAL WINAPI LoadResource(HMODULE module, HRSRC resource);
LPVOID WINAPI LockResource(HGLOBAL loaded);
DWORD WINAPI SizeofResource(HMODULE module, HRSRC resource);

// Registry and folders
LSTATUS WINAPI RegOpenKeyExA(HKEY parent, LPCSTR path, DWORD options, REGSAM access, PHKEY result);
LSTATUS WINAPI RegQueryValueExA(HKEY key, LPCSTR name, LPDWORD reserved, LPDWORD type, LPBYTE data,
                                LPDWORD size);
LSTATUS WINAPI RegCloseKey(HKEY key);
BOOL WINAPI CreateDirectoryA(LPCSTR path, LPSECURITY_ATTRIBUTES security);

// Windows and dialogs
HWND WINAPI CreateWindowExA(DWORD extendedStyle, LPCSTR className, LPCSTR text, DWORD style, int x, int y,
                            int width, int height, HWND parent, HMENU menuOrId, HINSTANCE module,
                            LPVOID param);
HWND WINAPI CreateDialogParamA(HINSTANCE module, LPCSTR name, HWND parent, DLGPROC procedure, LPARAM param);
BOOL WINAPI DestroyWindow(HWND window);
BOOL WINAPI IsWindow(HWND window);
BOOL WINAPI ShowWindow(HWND window, int command);
BOOL WINAPI IsWindowVisible(HWND window);
BOOL WINAPI GetClientRect(HWND window, LPRECT rectangle);
BOOL WINAPI MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint);
HWND WINAPI GetParent(HWND window);
HWND WINAPI GetDlgItem(HWND dialog, int id);
int WINAPI GetDlgCtrlID(HWND control);
BOOL WINAPI SetWindowTextA(HWND window, LPCSTR text);
int WINAPI GetWindowTextA(HWND window, LPSTR buffer, int size);
BOOL WINAPI SetDlgItemTextA(HWND dialog, int id, LPCSTR text);
UINT WINAPI GetDlgItemTextA(HWND dialog, int id, LPSTR buffer, int size);
LRESULT WINAPI SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LONG_PTR WINAPI GetWindowLongPtrA(HWND window, int index);
LONG_PTR WINAPI SetWindowLongPtrA(HWND window, int index, LONG_PTR value);
int WINAPI MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type);

// Time
DWORD WINAPI GetTickCount();

}  // extern "C"
#pragma GCC visibility pop
