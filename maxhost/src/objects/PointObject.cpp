#include "maxhost/src/objects/PointObject.h"

#include <cmath>

#include "maxhost/src/objects/ChunkData.h"
#include "maxhost/src/objects/FieldRestore.h"

namespace maxhost {

namespace {

/// Stored in scene files; never change it.
constexpr USHORT kSettingsChunk = 0x0220;

constexpr std::uint32_t kAllSwitches =
    PointObject::kCenterMarker | PointObject::kAxisTripod | PointObject::kCross | PointObject::kBox;

bool isSize(float size) {
    return std::isfinite(size) && size >= 0;
}

/// The axes from `low` to `high` on each.
void addAxes(LineFigure& figure, float low, float high) {
    figure.add({Point3(low, 0.0f, 0.0f), Point3(high, 0.0f, 0.0f)});
    figure.add({Point3(0.0f, low, 0.0f), Point3(0.0f, high, 0.0f)});
    figure.add({Point3(0.0f, 0.0f, low), Point3(0.0f, 0.0f, high)});
}

/// Two diagonals, in the plane of X and Z.
void addDiagonals(LineFigure& figure, float half) {
    figure.add({Point3(-half, 0.0f, -half), Point3(half, 0.0f, half)});
    figure.add({Point3(-half, 0.0f, half), Point3(half, 0.0f, -half)});
}

void addBox(LineFigure& figure, float half) {
    for (const float z : {-half, half})
        figure.add({{-half, -half, z}, {half, -half, z}, {half, half, z}, {-half, half, z}}, true);
    for (const float x : {-half, half})
        for (const float y : {-half, half})
            figure.add({Point3(x, y, -half), Point3(x, y, half)});
}

}  // namespace

RefTargetHandle PointObject::Clone(RemapDir& remap) {
    auto* const clone = new PointObject;
    clone->settings_ = settings_;
    BaseClone(this, clone, remap);
    return clone;
}

IOResult PointObject::Save(ISave* isave) {
    return writeChunk(*isave, kSettingsChunk, &settings_, sizeof settings_);
}

IOResult PointObject::Load(ILoad* iload) {
    return readOne(*iload, kSettingsChunk, settings_, [](const Settings& read) {
        return isSize(read.size) && (read.switches & ~kAllSwitches) == 0;
    });
}

void PointObject::show(Switch part, bool on) {
    const std::uint32_t switches = on ? settings_.switches | part : settings_.switches & ~part;
    if (switches != settings_.switches) changeField(*this, settings_.switches, switches);
}

void PointObject::setSize(float size) {
    if (isSize(size) && size != settings_.size) changeField(*this, settings_.size, size);
}

LineFigure& PointObject::figureAt(TimeValue, ViewExp* view) {
    const float half = settings_.size / 2;
    shown_ = LineFigure();
    if (isShown(kCenterMarker))
        addDiagonals(shown_, view == nullptr ? half / 4 : view->NonScalingObjectSize() / 3);
    if (isShown(kAxisTripod)) addAxes(shown_, 0, half);
    if (isShown(kCross)) addAxes(shown_, -half, half);
    if (isShown(kBox)) addBox(shown_, half);
    return shown_;
}

}  // namespace maxhost
