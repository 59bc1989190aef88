#include <algorithm>
#include <cstdio>

#include "maxhost/Viewport.h"
#include "maxhost/src/viewport/Ground.h"
#include "maxhost/src/viewport/MotionTrail.h"
#include "maxhost/src/viewport/Palette.h"
#include "maxhost/src/viewport/SceneNodes.h"
#include "maxhost/src/viewport/SkeletonDrawing.h"
#include "maxhost/src/viewport/SoftwareView.h"
#include "maxhost/src/viewport/StrokeFont.h"

namespace maxhost {

namespace {

constexpr int kSamplesPerPixel = 4, kGap = 3, kTitleBar = 40;
constexpr double kTextHeight = 11;

SceneExtent extentOf(const std::vector<INode*>& nodes, const std::vector<TimeValue>& times,
                     const Camera& camera) {
    SampleBuffer nothing(1, 1, 1, LinearColor());
    WorldPainter painter(camera, nothing);
    SoftwareView view(painter);
    return SceneExtent(nodes, times, view);
}

/// Everything that the moments have in common.
struct Stage {
    std::vector<INode*> nodes;
    Camera camera;
    SceneExtent extent;
    Ground ground;
    MotionTrail trail;

    Stage(Interface& host, const std::vector<TimeValue>& times, int width, int height)
        : nodes(visibleNodes(*host.GetRootNode())),
          camera(Camera::Direction(), width, height),
          extent(extentOf(nodes, times, camera)),
          ground(extent),
          trail(nodes, times) {
        camera.frame(extent.points(), 0.09, extent.figure());
    }
};

std::string momentLabel(TimeValue time, double framesPerTick) {
    char text[64];
    std::snprintf(text, sizeof text, "FRAME %.6g   %.2f S", time * framesPerTick,
                  static_cast<double>(time) / (GetTicksPerFrame() * GetFrameRate()));
    return text;
}

Picture drawMoment(Stage& stage, TimeValue time, const std::string& label) {
    SampleBuffer samples(stage.camera.pixelWidth(), stage.camera.pixelHeight(), kSamplesPerPixel,
                         LinearColor(palette::kBackground));
    WorldPainter painter(stage.camera, samples);
    SkeletonDrawing skeleton(painter, stage.extent.figure());
    stage.ground.drawPlate(painter);
    samples.makeBackdrop();
    skeleton.drawShadows(stage.nodes, time);
    samples.makeBackdrop();
    stage.ground.drawGrid(painter);
    stage.trail.draw(painter, time);
    skeleton.draw(stage.nodes, time);
    for (INode* node : stage.nodes) {
        const ObjectState state = node->EvalWorldState(time);
        SoftwareView view(painter);  // a fresh one, so that no object inherits another's modes
        if (state.obj != nullptr) state.obj->Display(time, node, &view, 0);
    }
    StrokeFont::write(painter.rasterizer(), label, 16, stage.camera.pixelHeight() - 16, kTextHeight,
                      LinearColor(palette::kCaption));
    return samples.resolve();
}

Picture filled(int width, int height, const std::string& text) {
    SampleBuffer samples(width, height, kSamplesPerPixel, LinearColor(palette::kGap));
    Rasterizer rasterizer(samples);
    StrokeFont::write(rasterizer, text, 16, kTitleBar / 2 + kTextHeight / 2, kTextHeight,
                      LinearColor(palette::kFaintCaption));
    return samples.resolve();
}

}  // namespace

Picture renderContactSheet(Interface& host, const std::vector<TimeValue>& times, const ContactSheet& sheet) {
    const int count = static_cast<int>(times.size());
    const int columns = std::max(1, std::min(sheet.columns, count));
    const int rows = (count + columns - 1) / columns;
    const int top = sheet.title.empty() ? 0 : kTitleBar;
    Picture picture(columns * (sheet.cellWidth + kGap) - kGap,
                    std::max(top, top + rows * (sheet.cellHeight + kGap) - kGap));
    picture.paste(filled(picture.width(), picture.height(), sheet.title), 0, 0);
    if (count == 0) return picture;
    Stage stage(host, times, sheet.cellWidth, sheet.cellHeight);
    const double framesPerTick = sheet.framesPerTick > 0 ? sheet.framesPerTick : 1.0 / GetTicksPerFrame();
    for (int i = 0; i < count; ++i) {
        const TimeValue time = times[static_cast<std::size_t>(i)];
        picture.paste(drawMoment(stage, time, momentLabel(time, framesPerTick)),
                      i % columns * (sheet.cellWidth + kGap), top + i / columns * (sheet.cellHeight + kGap));
    }
    return picture;
}

}  // namespace maxhost
