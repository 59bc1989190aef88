#pragma once

#include <string>
#include <vector>

#include "apps/headless/Stages.h"

namespace headless {

/// What a session found out.
struct Summary {
    std::string report;  // the core's own line
    std::size_t nodes = 0, joints = 0, keys = 0, frames = 0;
    double clipSeconds = 0;      // first to last clip frame
    double framesPerSecond = 0;  // of the clip frames
    int frameRate = 0, ticksPerFrame = 0;
    double rangeStart = 0, rangeEnd = 0;  // seconds
    double unitsPerMetre = 0;
    std::vector<std::string> undoNames;  // after the clip was loaded, newest first
    bool undoRemovesAll = false;         // undo took every node away
    bool redoPlaysTheSame = false;       // redo brought back the same motion
    bool reopenedPlaysTheSame = false;   // so did saving, resetting and opening
    bool secondSaveIsTheSame = false;    // saving the reopened scene gave the same bytes
    std::size_t sceneBytes = 0;
    std::vector<std::string> messageBoxes;
    std::vector<std::string> faults;  // mistakes of plug-ins that the host noticed

    /// Writes everything, and the time that each stage took, as JSON. Throws std::runtime_error.
    void write(const std::string& path, const Stages& stages) const;
};

}  // namespace headless
