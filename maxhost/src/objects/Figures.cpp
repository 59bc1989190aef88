#include "maxhost/src/objects/Figures.h"

namespace maxhost {

namespace {

/// The view's window, set up for a node.
GraphicsWindow& windowFor(TimeValue t, INode& node, ViewExp& view) {
    GraphicsWindow& window = *view.getGW();
    const Color color(node.GetWireColor());
    window.setTransform(node.GetObjectTM(t));
    window.setColor(FILL_COLOR, color);
    window.setColor(LINE_COLOR, node.Selected() ? Color(1, 1, 1) : color);
    return window;
}

}  // namespace

void displayFigure(Mesh& mesh, TimeValue t, INode& node, ViewExp& view) {
    mesh.render(&windowFor(t, node, view), node.Mtls(), nullptr, COMP_ALL, node.NumMtls());
}

void displayFigure(const LineFigure& lines, TimeValue t, INode& node, ViewExp& view) {
    lines.draw(windowFor(t, node, view));
}

bool hitFigure(Mesh& mesh, TimeValue t, INode& node, ViewExp& view, HitRegion& region, int flags) {
    return mesh.select(&windowFor(t, node, view), node.Mtls(), &region, flags & HIT_ABORTONHIT,
                       node.NumMtls()) != FALSE;
}

bool hitFigure(const LineFigure& lines, TimeValue t, INode& node, ViewExp& view, HitRegion& region,
               int flags) {
    return lines.select(windowFor(t, node, view), region, (flags & HIT_ABORTONHIT) != 0);
}

Box3 figureBox(Mesh& mesh, Matrix3* tm) {
    return mesh.getBoundingBox(tm);
}

Box3 figureBox(const LineFigure& lines, Matrix3* tm) {
    return lines.boundingBox(tm);
}

int intersectFigure(Mesh& mesh, Ray& ray, float& at, Point3& norm) {
    return mesh.IntersectRay(ray, at, norm);
}

int intersectFigure(const LineFigure&, Ray&, float&, Point3&) {
    return 0;
}

}  // namespace maxhost
