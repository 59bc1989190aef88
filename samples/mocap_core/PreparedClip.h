#pragma once

#include <string>

#include "samples/mocap_core/FrameGrid.h"
#include "samples/mocap_core/bvh/Clip.h"
#include "samples/mocap_core/state/ClipRecord.h"

namespace qvo::zmx::mocap {

/// A clip that has been read and found to fit the host, before the scene is touched.
struct PreparedClip {
    std::string path;
    double metresPerUnit;  ///< meters per clip unit
    Clip clip;
    double userRate;  ///< the host's frame rate, without the multiplier
    FrameGrid grid;

    /// `earliest`: the tick from which on the clip may start. Throws FileError.
    static PreparedClip read(const std::string& path, double metresPerUnit, double userRate,
                             std::int64_t earliest = 0);

    /// Puts the clip elsewhere on the time line. Throws FileError when it does not fit.
    void moveTo(std::int64_t earliest);

    /// What the take that it is baked into remembers.
    ClipRecord record() const;
};

}  // namespace qvo::zmx::mocap
