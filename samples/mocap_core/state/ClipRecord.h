#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "util/xml/Element.h"

namespace qvo::zmx::mocap {

/// What a take remembers of one clip that was baked into it.
struct ClipRecord {
    std::string path;            ///< where the clip was read from
    std::size_t frames = 0;      ///< clip frames
    double frameTime = 0.0;      ///< seconds between clip frames, as printed in the clip
    double metresPerUnit = 0.0;  ///< meters per clip unit
    std::int64_t firstTick = 0;  ///< of the first frame on the host's time line, 4800 ticks a second
    std::int64_t lastTick = 0;   ///< of the last frame

    /// The first tick that a clip put after this one may take: a frame time after the last frame.
    std::int64_t nextTick() const;

    /// Adds the clip's numbers as attributes, and its path as a child: an attribute value with a ">" does not
    /// read back.
    void writeTo(util::xml::Element& tool) const;

    /// Nothing when a number is missing or impossible: each frame has a tick of its own, and there are no
    /// more frames than a clip file could hold.
    static std::optional<ClipRecord> readFrom(const util::xml::Element& tool);
};

}  // namespace qvo::zmx::mocap
