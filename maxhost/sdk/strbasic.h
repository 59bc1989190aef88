#pragma once

#include <windows.h>

/// Narrow build: `TCHAR` is `char` and `_T("x")` is a plain literal.
#if __has_include(<tchar.h>)
#include <tchar.h>
#elif !defined(_T)
#define _T(text) text
#endif

typedef char TCHAR;
typedef TCHAR MCHAR;
