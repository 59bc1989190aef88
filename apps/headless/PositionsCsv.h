#pragma once

#include <string>

#include "apps/headless/Playback.h"

namespace headless {

/// Writes the table `frame,node,x,y,z`: one line for each joint at each clip frame (counted from 0), frames
/// in order, metres, Y up, with the nine digits that tell any two floats apart. Names with commas or quotes
/// are quoted. Throws std::runtime_error.
void writePositionsCsv(const std::string& path, const Playback& playback);

}  // namespace headless
