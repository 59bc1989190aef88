#pragma once

#include <maxapi.h>

#include <string>

#include "apps/headless/Playback.h"

namespace headless {

/// Draws how the liveliest joint of the open scene moves: its position over the whole clip, and below, where
/// it moves most, its keys as dots against the curve that the host evaluates between them. A scene without
/// joints or keys gives a page that says so. Throws std::runtime_error.
void writeCurvesSvg(const std::string& path, Interface& host, const Playback& playback);

}  // namespace headless
