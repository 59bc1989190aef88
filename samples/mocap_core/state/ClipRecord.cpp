#include "samples/mocap_core/state/ClipRecord.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "samples/mocap_core/FrameGrid.h"
#include "samples/mocap_core/Numbers.h"

namespace qvo::zmx::mocap {

namespace {

/// More than a day at a hundred frames a second. Whoever walks through a clip's frames trusts their number.
constexpr std::size_t kMostFrames = 10'000'000;
constexpr std::int64_t kLastTick = std::numeric_limits<std::int32_t>::max();  // of the host's time line

bool readPositive(const util::xml::Element& element, const char* name, double& value) {
    return parseNumber(element.attribute(name), value) == NumberFault::none && value > 0.0;
}

bool readTick(const util::xml::Element& element, const char* name, std::int64_t& tick) {
    const std::optional<std::size_t> value = parseCount(element.attribute(name));
    if (!value || *value > static_cast<std::size_t>(kLastTick)) return false;
    tick = static_cast<std::int64_t>(*value);
    return true;
}

}  // namespace

std::int64_t ClipRecord::nextTick() const {
    const double step = std::round(FrameGrid::exactFrameTime(frameTime) * FrameGrid::kTicksPerSecond);
    const double next = static_cast<double>(lastTick) + std::max(1.0, step);
    return next < static_cast<double>(kLastTick) ? static_cast<std::int64_t>(next) : kLastTick;
}

void ClipRecord::writeTo(util::xml::Element& tool) const {
    tool.attributes["firstTick"] = std::to_string(firstTick);
    tool.attributes["frameTime"] = toText(frameTime);
    tool.attributes["frames"] = std::to_string(frames);
    tool.attributes["lastTick"] = std::to_string(lastTick);
    tool.attributes["metresPerUnit"] = toText(metresPerUnit);
    tool.addTextTag("path", path);
}

std::optional<ClipRecord> ClipRecord::readFrom(const util::xml::Element& tool) {
    ClipRecord record;
    const std::optional<std::size_t> frames = parseCount(tool.attribute("frames"));
    if (!frames || !readPositive(tool, "frameTime", record.frameTime) ||
        !readPositive(tool, "metresPerUnit", record.metresPerUnit) ||
        !readTick(tool, "firstTick", record.firstTick) || !readTick(tool, "lastTick", record.lastTick) ||
        record.lastTick < record.firstTick || *frames < 1 || *frames > kMostFrames ||
        *frames - 1 > static_cast<std::size_t>(record.lastTick - record.firstTick))
        return std::nullopt;
    record.frames = *frames;
    record.path = tool.textOf("path");
    return record;
}

}  // namespace qvo::zmx::mocap
