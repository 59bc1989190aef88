#include "maxhost/src/objects/BoxObject.h"

#include <algorithm>

namespace maxhost {

namespace {

constexpr ParameterDefinition kDefinitions[BoxObject::kParameterCount] = {
    {_T("Length"), 25}, {_T("Width"), 25}, {_T("Height"), 25}};

/// Corners of each side, counter-clockwise seen from outside. Bit 0 of a corner's number: right, bit 1: back,
/// bit 2: top.
constexpr int kSides[6][4] = {{0, 2, 3, 1}, {4, 5, 7, 6}, {0, 1, 5, 4},
                              {1, 3, 7, 5}, {3, 2, 6, 7}, {2, 0, 4, 6}};

}  // namespace

BoxObject::BoxObject(bool withControls) : Named(kDefinitions, kParameterCount, withControls) {}

void BoxObject::buildMesh(TimeValue t, Mesh& mesh) {
    Interval valid = FOREVER;
    const float x = sizeAt(kWidth, t) / 2, y = sizeAt(kLength, t) / 2;
    const float height = parameters().value(kHeight, t, valid);
    const float low = std::min(0.0f, height), high = std::max(0.0f, height);

    mesh.FreeAll();
    mesh.setNumVerts(8);
    for (int i = 0; i < 8; ++i)
        mesh.setVert(i, Point3((i & 1) != 0 ? x : -x, (i & 2) != 0 ? y : -y, (i & 4) != 0 ? high : low));
    mesh.setNumFaces(12);
    for (int side = 0; side < 6; ++side) {
        const int* const corners = kSides[side];
        for (int half = 0; half < 2; ++half) {
            Face& face = mesh.faces[2 * side + half];
            face.setVerts(corners[2 * half], corners[2 * half + 1], corners[(2 * half + 2) % 4]);
            face.setEdgeVisFlags(1, 1, 0);
            face.setSmGroup(1u << side);
        }
    }
}

}  // namespace maxhost
