#pragma once

#include <vector>

namespace qvo::util {

/// Three doubles; which space and unit they are in is said where they are used.
struct Point3d {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

/// Triangle mesh as it crosses the core boundary: object-local host coordinates (Z-up, system units), no node
/// transform, axis change or unit factor applied in either direction.
///
/// The copy assignment is the only virtual operation and there is no virtual destructor: assigning to a mesh
/// of the other module lets that module allocate. Don't delete a CMesh through a pointer to a base.
class CMesh {
  public:
    CMesh() = default;
    CMesh(const CMesh&) = default;
    CMesh(CMesh&&) = default;
    virtual CMesh& operator=(const CMesh& other) = default;  // slot 0

    /// Whole triangles in `faces`; one or two trailing indices don't count.
    int faceCount() const { return static_cast<int>(faces.size() / 3); }

    std::vector<Point3d> vertices;
    std::vector<Point3d> textureVertices;  ///< u, v, w
    std::vector<int> faces;                ///< 3 indices into `vertices` per triangle, host corner order
    std::vector<int> textureFaces;  ///< 3 indices into `textureVertices` per triangle, parallel to `faces`
};

}  // namespace qvo::util
