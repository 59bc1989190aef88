#include "samples/mocap_core/PreparedClip.h"

#include <utility>

#include "samples/mocap_core/FileError.h"
#include "samples/mocap_core/bvh/BvhReader.h"
#include "util/Log.h"

namespace qvo::zmx::mocap {

using util::Log;
using util::logLine;

namespace {

FrameGrid gridFor(const std::string& path, const Clip& clip, double userRate, std::int64_t earliest) {
    return FileError::concerning(
        path, [&] { return FrameGrid(userRate, clip.frameTime, clip.frameCount(), earliest); });
}

}  // namespace

PreparedClip PreparedClip::read(const std::string& path, double metresPerUnit, double userRate,
                                std::int64_t earliest) {
    Clip clip = BvhReader::readFile(path);
    if (clip.surplusFrame) logLine(Log::kWarning, path, ": one frame more than announced is left out");
    const FrameGrid grid = gridFor(path, clip, userRate, earliest);
    if (!grid.isExact())
        logLine(Log::kWarning, path, ": frames are moved to the nearest of ", grid.rate(), " a second");
    return {path, metresPerUnit, std::move(clip), userRate, grid};
}

void PreparedClip::moveTo(std::int64_t earliest) {
    grid = gridFor(path, clip, userRate, earliest);
}

ClipRecord PreparedClip::record() const {
    return {path, clip.frameCount(), clip.frameTime, metresPerUnit, grid.firstTick(), grid.lastTick()};
}

}  // namespace qvo::zmx::mocap
