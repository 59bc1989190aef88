#include "maxhost/src/objects/FreeCamera.h"

#include <algorithm>
#include <cmath>

#include "maxhost/src/objects/ChunkData.h"
#include "maxhost/src/objects/FieldRestore.h"

namespace maxhost {

namespace {

constexpr ParameterDefinition kDefinitions[FreeCamera::kParameterCount] = {{_T("FOV"), 0.785398163f},
                                                                           {_T("Target Distance"), 160}};

/// Stored in scene files; never change it.
constexpr USHORT kSettingsChunk = 0x0210;

bool isFieldOfViewType(int type) {
    return type == FOV_W || type == FOV_H || type == FOV_D;
}

/// Half width and half height of what the camera sees at distance 1.
struct HalfPicture {
    float x, y;

    HalfPicture(float fieldOfView, int type) {
        constexpr float kLeast = 0.01f, kMost = 3;  // so that the drawing stays finite
        const float half = std::tan(std::clamp(fieldOfView, kLeast, kMost) / 2);
        // The picture is four wide and three high, so five along its diagonal.
        const float unit = half / (type == FOV_W ? 4.0f : type == FOV_H ? 3.0f : 5.0f);
        x = 4 * unit;
        y = 3 * unit;
    }
};

}  // namespace

FreeCamera::FreeCamera(bool withControls) : Named(kDefinitions, kParameterCount, withControls) {}

RefTargetHandle FreeCamera::Clone(RemapDir& remap) {
    auto* const clone = new FreeCamera(false);
    clone->settings_ = settings_;
    clone->parameters().cloneControls(parameters(), remap);
    BaseClone(this, clone, remap);
    return clone;
}

IOResult FreeCamera::Save(ISave* isave) {
    return writeChunk(*isave, kSettingsChunk, &settings_, sizeof settings_);
}

IOResult FreeCamera::Load(ILoad* iload) {
    return readOne(*iload, kSettingsChunk, settings_,
                   [](const Settings& read) { return isFieldOfViewType(read.fieldOfViewType); });
}

void FreeCamera::SetFOVType(int ft) {
    if (isFieldOfViewType(ft)) set(&Settings::fieldOfViewType, ft);
}

void FreeCamera::set(std::int32_t Settings::*field, int value) {
    if (settings_.*field != value) changeField(*this, settings_.*field, std::int32_t{value});
}

LineFigure& FreeCamera::figureAt(TimeValue t, ViewExp* view) {
    Interval valid = FOREVER;
    const HalfPicture half(GetFOV(t, valid), settings_.fieldOfViewType);
    const float depth = view == nullptr ? 1 : 3 * view->NonScalingObjectSize();
    const float x = half.x * depth, y = half.y * depth;
    const Point3 corners[4] = {{-x, -y, -depth}, {x, -y, -depth}, {x, y, -depth}, {-x, y, -depth}};

    shown_ = LineFigure();
    shown_.add({corners, corners + 4}, true);
    for (const Point3& corner : corners)
        shown_.add({settings_.ortho != 0 ? Point3(corner.x, corner.y, 0.0f) : Point3(0, 0, 0), corner});
    // Which way is up.
    shown_.add({corners[3], Point3(0.0f, 1.4f * y, -depth), corners[2]});
    return shown_;
}

}  // namespace maxhost
