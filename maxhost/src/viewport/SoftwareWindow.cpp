#include "maxhost/src/viewport/SoftwareWindow.h"

#include "maxhost/src/viewport/Lighting.h"
#include "maxhost/src/viewport/StrokeFont.h"

namespace maxhost {

namespace {

constexpr double kLineWidth = 1.0, kTextHeight = 9;

Point3 normalOf(const Point3 (&corners)[3]) {
    return (corners[1] - corners[0]) ^ (corners[2] - corners[0]);
}

Point3 middleOf(const Point3 (&corners)[3]) {
    return (corners[0] + corners[1] + corners[2]) / 3.0f;
}

}  // namespace

void SoftwareWindow::setColor(int which, float r, float g, float b) {
    const Color color(r, g, b);
    if (which == LINE_COLOR) line_ = color;
    if (which == FILL_COLOR) fill_ = color;
    if (which == TEXT_COLOR) text_ = color;
}

void SoftwareWindow::setMaterial(const Material& m, int /*index*/) {
    fill_ = Color(m.Kd);
}

void SoftwareWindow::polyline(int ct, Point3* pts, Point3* rgb, int closed, int* es) {
    const int segments = closed ? ct : ct - 1;
    for (int i = 0; i < segments; ++i) {
        if (es != nullptr && es[i] == 0) continue;
        const LinearColor color(rgb != nullptr ? Color(rgb[i]) : line_);
        segment(pts[i] * toWorld_, pts[(i + 1) % ct] * toWorld_, color);
    }
}

void SoftwareWindow::segment(const Point3& a, const Point3& b, const LinearColor& color) {
    if (!picking()) {
        painter_.line(a, b, kLineWidth, color);
        return;
    }
    ScreenPoint from, to;
    if (painter_.locate(a, from) && painter_.locate(b, to) && pick_.line(from, to)) hit_ = true;
}

void SoftwareWindow::triangle(Point3* pts, Point3* rgb) {
    const Point3 world[3] = {pts[0] * toWorld_, pts[1] * toWorld_, pts[2] * toWorld_};
    if (isCulled(world)) return;
    if ((limits_ & GW_WIREFRAME) != 0) {
        outline(world, nullptr);
    } else if (picking()) {
        pickTriangle(world);
    } else {
        fillTriangle(world, rgb);
    }
}

void SoftwareWindow::triangleW(Point3* pts, int* es) {
    const Point3 world[3] = {pts[0] * toWorld_, pts[1] * toWorld_, pts[2] * toWorld_};
    if (!isCulled(world)) outline(world, es);
}

void SoftwareWindow::outline(const Point3 (&world)[3], const int* es) {
    for (int i = 0; i < 3; ++i)
        if (es == nullptr || es[i] != 0) segment(world[i], world[(i + 1) % 3], LinearColor(line_));
}

bool SoftwareWindow::isCulled(const Point3 (&world)[3]) const {
    return (limits_ & GW_BACKCULL) != 0 && (limits_ & GW_TWO_SIDED) == 0 && facesAway(world);
}

bool SoftwareWindow::facesAway(const Point3 (&world)[3]) const {
    const bool away = normalOf(world) % (painter_.camera().position() - middleOf(world)) <= 0;
    return toWorld_.Parity() ? !away : away;
}

void SoftwareWindow::pickTriangle(const Point3 (&world)[3]) {
    ScreenPoint screen[3];
    for (int i = 0; i < 3; ++i)
        if (!painter_.locate(world[i], screen[i])) return;
    if (pick_.triangle(screen)) hit_ = true;
}

void SoftwareWindow::fillTriangle(const Point3 (&world)[3], const Point3* rgb) {
    const Point3 toEye = painter_.camera().position() - middleOf(world);
    LinearColor colors[3];
    for (int i = 0; i < 3; ++i) {
        colors[i] = LinearColor(rgb != nullptr ? Color(rgb[i]) : fill_);
        if ((limits_ & GW_ILLUM) != 0) colors[i] = lit(colors[i], normalOf(world), toEye);
    }
    painter_.triangle(world, colors);
}

void SoftwareWindow::text(Point3* at, const TCHAR* s) {
    ScreenPoint place;
    if (picking() || !painter_.locate(*at * toWorld_, place)) return;
    StrokeFont::write(painter_.rasterizer(), s, place.x, place.y, kTextHeight, LinearColor(text_));
}

}  // namespace maxhost
