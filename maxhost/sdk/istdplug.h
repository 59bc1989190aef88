#pragma once

/// Ids of the standard plug-ins.
#include "plugapi.h"
