#pragma once

/// The host's headers, bracketed: the one place to quiet their warnings and to take back macros that stand
/// in the way of names elsewhere. Product sources include this header and none of the host's own.

#if defined(__GNUC__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wpedantic"
#pragma GCC diagnostic ignored "-Wshadow"
#pragma GCC diagnostic ignored "-Wunused-parameter"
#endif

#include <windows.h>

#include <max.h>

#include <gup.h>
#include <iparamb2.h>
#include <istdplug.h>
#include <notify.h>
#include <units.h>
#include <utilapi.h>

#if defined(__GNUC__)
#pragma GCC diagnostic pop
#endif

// Macros of the Windows headers: words that the standard library and we use as names.
#undef min
#undef max
#undef small
