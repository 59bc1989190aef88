#include "maxhost/src/objects/SphereObject.h"

#include <cmath>

namespace maxhost {

namespace {

constexpr ParameterDefinition kDefinitions[SphereObject::kParameterCount] = {{_T("Radius"), 25}};
constexpr int kAround = 32, kRings = kAround / 2 - 1;
constexpr int kNorth = kRings * kAround, kSouth = kNorth + 1;

int onRing(int ring, int i) {
    return ring * kAround + i % kAround;
}

void setFace(Face& face, int a, int b, int c, bool lastEdgeVisible) {
    face.setVerts(a, b, c);
    face.setEdgeVisFlags(1, 1, lastEdgeVisible);
    face.setSmGroup(1);
}

}  // namespace

SphereObject::SphereObject(bool withControls) : Named(kDefinitions, kParameterCount, withControls) {}

void SphereObject::buildMesh(TimeValue t, Mesh& mesh) {
    const double radius = sizeAt(kRadius, t), step = 2 * std::acos(-1.0) / kAround;
    mesh.FreeAll();
    mesh.setNumVerts(kSouth + 1);
    for (int ring = 0; ring < kRings; ++ring) {
        const double height = radius * std::cos((ring + 1) * step),
                     width = radius * std::sin((ring + 1) * step);
        for (int i = 0; i < kAround; ++i)
            mesh.setVert(onRing(ring, i),
                         Point3(width * std::cos(i * step), width * std::sin(i * step), height));
    }
    mesh.setVert(kNorth, Point3(0.0, 0.0, radius));
    mesh.setVert(kSouth, Point3(0.0, 0.0, -radius));

    mesh.setNumFaces(2 * kRings * kAround);
    Face* face = mesh.faces;
    for (int i = 0; i < kAround; ++i) {
        setFace(*face++, kNorth, onRing(0, i), onRing(0, i + 1), true);
        for (int ring = 0; ring + 1 < kRings; ++ring) {
            setFace(*face++, onRing(ring, i), onRing(ring + 1, i), onRing(ring + 1, i + 1), false);
            setFace(*face++, onRing(ring + 1, i + 1), onRing(ring, i + 1), onRing(ring, i), false);
        }
        setFace(*face++, kSouth, onRing(kRings - 1, i + 1), onRing(kRings - 1, i), true);
    }
}

}  // namespace maxhost
