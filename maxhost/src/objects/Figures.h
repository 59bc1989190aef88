#pragma once

#include <inode.h>
#include <maxapi.h>
#include <mesh.h>

#include "maxhost/src/objects/LineFigure.h"

namespace maxhost {

/// What every figure (a mesh, or lines) of a node's object can do in a view. The window's transform and
/// colours are set, its modes are left as they were.
///
/// Meshes are drawn in the node's materials if it has any, else in its wire colour; lines in its wire colour,
/// white when the node is selected.
CoreExport void displayFigure(Mesh& mesh, TimeValue t, INode& node, ViewExp& view);
CoreExport void displayFigure(const LineFigure& lines, TimeValue t, INode& node, ViewExp& view);

/// Whether the region hits the figure. `flags` of BaseObject::HitTest.
CoreExport bool hitFigure(Mesh& mesh, TimeValue t, INode& node, ViewExp& view, HitRegion& region, int flags);
CoreExport bool hitFigure(const LineFigure& lines, TimeValue t, INode& node, ViewExp& view, HitRegion& region,
                          int flags);

/// Box of the figure, transformed when `tm` is given; empty for an empty figure.
CoreExport Box3 figureBox(Mesh& mesh, Matrix3* tm);
CoreExport Box3 figureBox(const LineFigure& lines, Matrix3* tm);

/// Nonzero when the ray hits; lines are never hit.
CoreExport int intersectFigure(Mesh& mesh, Ray& ray, float& at, Point3& norm);
CoreExport int intersectFigure(const LineFigure& lines, Ray& ray, float& at, Point3& norm);

}  // namespace maxhost
