#include "maxhost/src/objects/SplineShape.h"

#include <triobj.h>

#include <algorithm>
#include <utility>

#include "maxhost/src/objects/FieldRestore.h"
#include "maxhost/src/objects/SplineChunks.h"

namespace maxhost {

namespace {

/// Points along the curve for drawing and filling: a straight piece gives its start alone, another one
/// several.
std::vector<Point3> outline(const SplineCurve& curve) {
    constexpr int kSteps = 12;
    std::vector<Point3> points;
    const int pieces = curve.pieceCount();
    const auto add = [&](double parameter) {
        const CurvePoint p = curve.point(parameter);
        points.emplace_back(p.x, p.y, p.z);
    };
    for (int i = 0; i < pieces; ++i) {
        const int steps = curve.isStraight(i) ? 1 : kSteps;
        for (int step = 0; step < steps; ++step)
            add((i + static_cast<double>(step) / steps) / pieces);
    }
    if (!curve.closed()) add(1);
    return points;
}

bool canBeFilled(const SplineCurve& curve) {
    return curve.closed() && curve.length() > 0;
}

/// Adds a fan over the outline to the mesh.
void addFan(Mesh& mesh, const std::vector<Point3>& points) {
    const int count = static_cast<int>(points.size()), firstVert = mesh.numVerts, firstFace = mesh.numFaces;
    if (count < 3) return;
    mesh.setNumVerts(firstVert + count, TRUE);
    mesh.setNumFaces(firstFace + count - 2, TRUE);
    for (int i = 0; i < count; ++i)
        mesh.setVert(firstVert + i, points[static_cast<size_t>(i)]);
    for (int i = 0; i < count - 2; ++i) {
        Face& face = mesh.faces[firstFace + i];
        face.setVerts(firstVert, firstVert + i + 1, firstVert + i + 2);
        face.setEdgeVisFlags(i == 0, 1, i == count - 3);
    }
}

}  // namespace

const SplineCurve* SplineShape::curve(int i) const {
    return i >= 0 && static_cast<size_t>(i) < curves_.size() ? &curves_[static_cast<size_t>(i)] : nullptr;
}

void SplineShape::setCurves(std::vector<SplineCurve> curves) {
    changeField(*this, curves_, std::move(curves));
}

RefTargetHandle SplineShape::Clone(RemapDir& remap) {
    auto* const clone = new SplineShape;
    clone->curves_ = curves_;
    BaseClone(this, clone, remap);
    return clone;
}

IOResult SplineShape::Save(ISave* isave) {
    return saveCurves(*isave, curves_);
}

IOResult SplineShape::Load(ILoad* iload) {
    return loadCurves(*iload, curves_);
}

int SplineShape::CanConvertToType(Class_ID type) {
    if (type == ClassID()) return 1;
    return type == triObjectClassID && std::any_of(curves_.begin(), curves_.end(), canBeFilled) ? 1 : 0;
}

Object* SplineShape::ConvertToType(TimeValue, Class_ID type) {
    if (type == ClassID()) return this;
    if (!CanConvertToType(type)) return nullptr;
    TriObject* const converted = CreateNewTriObject();
    for (const SplineCurve& each : curves_)
        if (canBeFilled(each)) addFan(converted->mesh, outline(each));
    return converted;
}

BOOL SplineShape::CurveClosed(TimeValue, int i) {
    const SplineCurve* const of = curve(i);
    return of != nullptr && of->closed() ? TRUE : FALSE;
}

Point3 SplineShape::InterpCurve3D(TimeValue, int i, float param, int ptype) {
    const SplineCurve* const of = curve(i);
    if (of == nullptr) return Point3(0, 0, 0);
    const CurvePoint p = of->point(ptype == PARAM_NORMALIZED ? of->fromLengthParameter(param) : param);
    return Point3(p.x, p.y, p.z);
}

Point3 SplineShape::TangentCurve3D(TimeValue, int i, float param, int ptype) {
    const SplineCurve* const of = curve(i);
    if (of == nullptr) return Point3(0, 0, 0);
    const CurvePoint along = of->tangent(ptype == PARAM_NORMALIZED ? of->fromLengthParameter(param) : param);
    return Point3(along.x, along.y, along.z);
}

float SplineShape::LengthOfCurve(TimeValue, int i) {
    const SplineCurve* const of = curve(i);
    return of == nullptr ? 0.0f : static_cast<float>(of->length());
}

int SplineShape::NumberOfPieces(TimeValue, int i) {
    const SplineCurve* const of = curve(i);
    return of == nullptr ? 0 : of->pieceCount();
}

LineFigure& SplineShape::figureAt(TimeValue, ViewExp*) {
    shown_ = LineFigure();
    for (const SplineCurve& each : curves_)
        shown_.add(outline(each), each.closed());
    return shown_;
}

}  // namespace maxhost
