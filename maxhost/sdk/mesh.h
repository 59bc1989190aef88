#pragma once

#include "baseinterface.h"
#include "box3.h"
#include "coreexp.h"
#include "maxtypes.h"
#include "ray.h"

class GraphicsWindow;
class HitRegion;
class Material;

typedef Point3 UVVert;

/// Which parts of a mesh are drawn. This host draws them all in any case.
constexpr int COMP_ALL = 0x0f;

/// Visibility bits of a face's edges: A is v0-v1, B v1-v2, C v2-v0.
constexpr DWORD EDGE_A = 1;
constexpr DWORD EDGE_B = 2;
constexpr DWORD EDGE_C = 4;
constexpr DWORD EDGE_ALL = EDGE_A | EDGE_B | EDGE_C;
constexpr int FACE_MATID_SHIFT = 16;

/// Triangle by vertex indices. Material id in the high half of `flags`.
class Face {
  public:
    DWORD v[3] = {0, 0, 0};
    DWORD smGroup = 0;
    DWORD flags = EDGE_ALL;

    void setVerts(int a, int b, int c) {
        v[0] = static_cast<DWORD>(a);
        v[1] = static_cast<DWORD>(b);
        v[2] = static_cast<DWORD>(c);
    }
    DWORD getVert(int i) const { return v[i]; }
    void setEdgeVisFlags(int va, int vb, int vc) {
        flags = (flags & ~EDGE_ALL) | (va ? EDGE_A : 0u) | (vb ? EDGE_B : 0u) | (vc ? EDGE_C : 0u);
    }
    void setSmGroup(DWORD group) { smGroup = group; }
    void setMatID(MtlID id) { flags = (flags & 0xffffu) | (static_cast<DWORD>(id) << FACE_MATID_SHIFT); }
    MtlID getMatID() const { return static_cast<MtlID>(flags >> FACE_MATID_SHIFT); }
};

/// Texture triangle by texture vertex indices.
class TVFace {
  public:
    DWORD t[3] = {0, 0, 0};

    void setTVerts(int a, int b, int c) {
        t[0] = static_cast<DWORD>(a);
        t[1] = static_cast<DWORD>(b);
        t[2] = static_cast<DWORD>(c);
    }
    DWORD getTVert(int i) const { return t[i]; }
};

/// Triangle mesh, a value class: members and locals are fine. Vertices in object space, system units. The
/// arrays are null when their count is 0. Resizing with `keep` FALSE leaves contents undefined; texture faces
/// are not kept in step with faces. A negative count changes nothing and answers FALSE.
class CoreExport Mesh : public BaseInterfaceServer {
  public:
    int numVerts = 0, numFaces = 0, numTVerts = 0;
    Point3* verts = nullptr;
    Face* faces = nullptr;
    UVVert* tVerts = nullptr;
    TVFace* tvFace = nullptr;

    Mesh() = default;
    Mesh(const Mesh& other);
    Mesh& operator=(const Mesh& other);
    ~Mesh() override;

    BOOL setNumVerts(int ct, BOOL keep = FALSE, BOOL synchSel = TRUE);
    BOOL setNumFaces(int ct, BOOL keep = FALSE, BOOL synchSel = TRUE);
    BOOL setNumTVerts(int ct, BOOL keep = FALSE);
    /// `oldCt`: number of old texture faces to keep, 0 for as many as there are.
    BOOL setNumTVFaces(int ct, BOOL keep = FALSE, int oldCt = 0);
    int getNumVerts() const { return numVerts; }
    int getNumFaces() const { return numFaces; }
    int getNumTVerts() const { return numTVerts; }
    int getNumTVFaces() const { return numTVFaces_; }

    Point3& getVert(int i) { return verts[i]; }
    void setVert(int i, const Point3& p) { verts[i] = p; }
    UVVert& getTVert(int i) { return tVerts[i]; }
    void setTVert(int i, const UVVert& p) { tVerts[i] = p; }
    void setTVert(int i, float x, float y, float z) { tVerts[i] = UVVert(x, y, z); }

    /// The nearest face that the ray meets at or in front of its origin, from either side: `at` in lengths of
    /// the ray's direction, `norm` the unit normal of the face (counter-clockwise side). Computed in double
    /// precision; a ray through an edge or vertex shared by faces never slips between them; of equally near
    /// faces the first one. Faces without area and faces with bad indices are never hit. 0, and nothing
    /// written, when there is no hit. Linear in the faces.
    int IntersectRay(Ray& ray, float& at, Point3& norm);
    /// Also gives the index of the face and the weights of its three vertices at the hit (their sum is 1).
    int IntersectRay(Ray& ray, float& at, Point3& norm, DWORD& fi, Point3& bary);

    /// Draws the faces under the window's present transform and modes: filled in the fill colour, or with
    /// GW_WIREFRAME their visible edges (with GW_ALL_EDGES all) in the line colour. `ma` may be null: the
    /// window's present colours are used; else it has `numMat` materials and a face is filled with that of
    /// its material id (modulo `numMat`). Faces with bad indices are left out. Simplified: `rp`, `compFlags`
    /// and `pi` have no effect; every face is flat, whatever its smoothing groups.
    void render(GraphicsWindow* gw, Material* ma, RECT* rp, int compFlags, int numMat = 1,
                InterfaceServer* pi = nullptr);
    /// Whether the region hits what `render` would draw under the window's present transform and modes. A
    /// rectangle or circle without `crossing` must hold the whole mesh, the sides and edges that are not
    /// drawn included. The window's modes are left as they were; GW_PICK need not be among them.
    /// `abortOnHit`: the first face that is hit ends the search.
    BOOL select(GraphicsWindow* gw, Material* ma, HitRegion* hr, int abortOnHit = FALSE, int numMat = 1);

    /// Of the vertices, transformed when `tm` is given. No vertices: an empty box.
    /// Simplified: computed at every call, so the cache calls below have nothing to do.
    Box3 getBoundingBox(Matrix3* tm = nullptr);
    void buildBoundingBox() {}
    void buildNormals() {}
    void InvalidateGeomCache() {}
    void InvalidateTopologyCache() {}
    void EnableEdgeList(int /*e*/) {}
    /// Back to an empty mesh.
    void FreeAll();

  private:
    int numTVFaces_ = 0;
};
