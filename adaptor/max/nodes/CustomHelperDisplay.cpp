// How the helper object shows itself: display mesh, drawing, picking, bounding boxes.

#include <algorithm>
#include <cmath>

#include "adaptor/max/Boundary.h"
#include "adaptor/max/nodes/CustomHelperObject.h"
#include "adaptor/max/nodes/MeshTransfer.h"

namespace qvo::zmx::adaptor::max {

namespace {

constexpr int kPickTolerance = 4;       // pixels
constexpr float kMarkerRadius = 0.01f;  // object units, of the cross that stands for an empty shape
/// Length of the pivot's axes as a part of the shape's reach: enough to tell the directions, without crossing
/// the shapes of neighbours.
constexpr float kAxisFactor = 0.25f;

void drawLine(GraphicsWindow& window, const Point3& from, const Point3& to, const Point3& color) {
    Point3 ends[2] = {from, to};
    Point3 colors[2] = {color, color};
    window.polyline(2, ends, colors, FALSE, nullptr);
}

}  // namespace

void CustomHelperObject::rebuildDisplayMesh() {
    displayMesh_.setNumVerts(static_cast<int>(shape_.vertices.size()), FALSE, TRUE);
    // Without a vertex there is no index that a triangle could name.
    displayMesh_.setNumFaces(shape_.vertices.empty() ? 0 : shape_.faceCount(), FALSE, TRUE);
    for (int i = 0; i < displayMesh_.getNumVerts(); ++i)
        displayMesh_.setVert(i, narrowed(shape_.vertices[static_cast<std::size_t>(i)]));
    fillDisplayFaces();
    displayMesh_.InvalidateGeomCache();
    displayMesh_.InvalidateTopologyCache();
}

void CustomHelperObject::fillDisplayFaces() {
    const int vertexCount = displayMesh_.getNumVerts();
    const auto isVertex = [vertexCount](int index) { return index >= 0 && index < vertexCount; };
    for (int i = 0; i < displayMesh_.getNumFaces(); ++i) {
        const int* const corner = &shape_.faces[static_cast<std::size_t>(i) * 3];
        Face& face = displayMesh_.faces[i];
        if (isVertex(corner[0]) && isVertex(corner[1]) && isVertex(corner[2]))
            face.setVerts(corner[0], corner[1], corner[2]);
        else
            face.setVerts(0, 0, 0);
        face.setEdgeVisFlags(1, 1, 0);
    }
}

DWORD CustomHelperObject::renderLimits(DWORD viewLimits) const {
    DWORD limits = viewLimits | GW_Z_BUFFER;
    if (backfaceCulling()) limits |= GW_BACKCULL;
    if (wireframe()) limits = (limits & ~GW_LIGHTING) | GW_WIREFRAME | GW_FLAT;
    return limits;
}

void CustomHelperObject::drawShape(GraphicsWindow& window) {
    const Point3 color(color_[0], color_[1], color_[2]);
    Material material;
    material.Ka = color;
    material.Kd = color;
    window.setMaterial(material);
    window.setColor(LINE_COLOR, color);
    displayMesh_.render(&window, &material, nullptr, COMP_ALL);
}

float CustomHelperObject::pivotReach() {
    const Box3 box = displayMesh_.getBoundingBox();
    if (box.IsEmpty()) return kMarkerRadius;
    float reach = 0.0f;
    for (int axis = 0; axis < 3; ++axis)
        reach = std::max({reach, std::abs(box.pmin[axis]), std::abs(box.pmax[axis])});
    return kAxisFactor * reach;
}

void CustomHelperObject::drawLines(GraphicsWindow& window) {
    const bool drawMarker = markerWhenEmpty() && shape_.vertices.empty();
    if (!drawMarker && !pivotAxes()) return;
    const Point3 axes[3] = {Point3(1.0f, 0.0f, 0.0f), Point3(0.0f, 1.0f, 0.0f), Point3(0.0f, 0.0f, 1.0f)};
    const Point3 color(color_[0], color_[1], color_[2]);
    const float reach = pivotReach();
    for (const Point3& axis : axes) {
        const Point3 end = axis * reach;
        if (drawMarker) drawLine(window, -end, end, color);
        // The axes carry the usual colours: x red, y green, z blue.
        if (pivotAxes()) drawLine(window, Point3(0.0f, 0.0f, 0.0f), end, axis);
    }
}

int CustomHelperObject::Display(TimeValue t, INode* inode, ViewExp* vpt, int /*flags*/) {
    return guarded("Display", 0, [&] {
        rebuildDisplayMesh();
        GraphicsWindow& window = *vpt->getGW();
        const DWORD viewLimits = window.getRndLimits();
        window.setRndLimits(renderLimits(viewLimits));
        window.setTransform(inode->GetObjectTM(t));
        drawShape(window);
        drawLines(window);
        window.setRndLimits(viewLimits);
        return 1;
    });
}

int CustomHelperObject::HitTest(TimeValue t, INode* inode, int type, int crossing, int flags, IPoint2* p,
                                ViewExp* vpt) {
    return guarded("HitTest", 0, [&] {
        rebuildDisplayMesh();
        GraphicsWindow* const window = vpt->getGW();
        window->setTransform(inode->GetObjectTM(t));
        HitRegion region;
        MakeHitRegion(region, type, crossing, kPickTolerance, p);
        return displayMesh_.select(window, inode->Mtls(), &region, flags & HIT_ABORTONHIT, inode->NumMtls());
    });
}

void CustomHelperObject::GetLocalBoundBox(TimeValue /*t*/, INode* /*inode*/, ViewExp* /*vpt*/, Box3& box) {
    box.Init();
    guarded("GetLocalBoundBox", [&] {
        rebuildDisplayMesh();
        box = displayMesh_.getBoundingBox();
    });
}

void CustomHelperObject::GetWorldBoundBox(TimeValue t, INode* inode, ViewExp* vpt, Box3& box) {
    GetLocalBoundBox(t, inode, vpt, box);
    box = box * inode->GetObjectTM(t);
}

}  // namespace qvo::zmx::adaptor::max
