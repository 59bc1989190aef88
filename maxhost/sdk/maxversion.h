#pragma once

#include "buildver.h"

/// The word that a plug-in's `LibVersion` returns: release in the high half, then interface number, then
/// revision.
#define MAKE_MAX_VERSION(release, api, rev) \
    ((static_cast<ULONG>(release) << 16) + (static_cast<ULONG>(api) << 8) + static_cast<ULONG>(rev))
#define VERSION_3DSMAX MAKE_MAX_VERSION(MAX_RELEASE, MAX_API_NUM, MAX_SDK_REV)
