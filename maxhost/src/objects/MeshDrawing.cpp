#include <gfx.h>

#include "maxhost/src/objects/FaceCheck.h"
#include "maxhost/src/objects/HitTally.h"

namespace {

/// Sends faces to a window in the way that its modes ask for.
class FaceSender {
  public:
    FaceSender(Mesh& mesh, GraphicsWindow& window)
        : mesh_(mesh),
          window_(window),
          wireframe_((window.getRndMode() & GW_WIREFRAME) != 0),
          allEdges_((window.getRndMode() & GW_ALL_EDGES) != 0) {}

    void send(const Face& face) {
        Point3 corners[3];
        for (int i = 0; i < 3; ++i)
            corners[i] = mesh_.verts[face.v[i]];
        if (!wireframe_) {
            window_.triangle(corners, nullptr);
            return;
        }
        int visible[3];
        for (unsigned i = 0; i < 3; ++i)
            visible[i] = allEdges_ || (face.flags & (EDGE_A << i)) != 0;
        window_.triangleW(corners, visible);
    }

  private:
    Mesh& mesh_;
    GraphicsWindow& window_;
    const bool wireframe_;
    const bool allEdges_;
};

/// Makes a face's material the window's, if it is not that of the face before.
class MaterialSwitch {
  public:
    MaterialSwitch(GraphicsWindow& window, Material* materials, int count)
        : window_(window), materials_(materials), count_(materials == nullptr ? 0 : count) {}

    void use(const Face& face) {
        if (count_ <= 0) return;
        const int wanted = face.getMatID() % count_;
        if (wanted == current_) return;
        current_ = wanted;
        window_.setMaterial(materials_[wanted], wanted);
    }

  private:
    GraphicsWindow& window_;
    Material* materials_;
    int count_;
    int current_ = -1;
};

}  // namespace

void Mesh::render(GraphicsWindow* gw, Material* ma, RECT*, int, int numMat, InterfaceServer*) {
    FaceSender sender(*this, *gw);
    MaterialSwitch materials(*gw, ma, numMat);
    for (int i = 0; i < numFaces; ++i) {
        if (!maxhost::namesVertices(*this, faces[i])) continue;
        materials.use(faces[i]);
        sender.send(faces[i]);
    }
}

BOOL Mesh::select(GraphicsWindow* gw, Material*, HitRegion* hr, int abortOnHit, int) {
    maxhost::HitTally tally(*gw, *hr, abortOnHit != 0);
    FaceSender sender(*this, *gw);
    for (int i = 0; i < numFaces; ++i) {
        const Face& face = faces[i];
        if (maxhost::namesVertices(*this, face) && !tally.add([&] { sender.send(face); })) break;
    }
    return tally.hit() ? TRUE : FALSE;
}
