#pragma once

/// The host's headers, bracketed: the one place to quiet their warnings and to take back macros that would
/// rename our own names. Product sources include this header and none of the host's own.

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

// Not names of ours or of the host's, but macros of the Windows headers.
#undef min
#undef max
#undef small
