#include <cmath>

#include "maxhost/src/objects/FaceCheck.h"

namespace {

/// Point or vector in double precision. Differences of floats are (all but) exact in it.
struct Vector {
    double x, y, z;
};

Vector difference(const Point3& a, const Point3& b) {
    return {double{a.x} - b.x, double{a.y} - b.y, double{a.z} - b.z};
}

Vector cross(const Vector& a, const Vector& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

double dot(const Vector& a, const Vector& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

struct Hit {
    double at;
    Vector normal;  ///< of any length
    double weights[3];
};

/// Where the line from `origin` along `direction` meets the triangle; false when it does not, or only behind
/// the origin. Each weight is the volume spanned by the direction and one edge: the two faces of an edge
/// compute the same number with opposite signs, so that one of them takes every line through the edge.
bool meets(const Point3& origin, const Vector& direction, const Point3& a, const Point3& b, const Point3& c,
           Hit& hit) {
    const Vector toA = difference(a, origin), toB = difference(b, origin), toC = difference(c, origin);
    const double u = dot(direction, cross(toB, toC));
    const double v = dot(direction, cross(toC, toA));
    const double w = dot(direction, cross(toA, toB));
    const bool inside = (u >= 0 && v >= 0 && w >= 0) || (u <= 0 && v <= 0 && w <= 0);
    if (!inside) return false;

    const Vector normal = cross(difference(b, a), difference(c, a));
    const double slope = dot(direction, normal), volume = u + v + w;
    if (slope == 0 || volume == 0) return false;
    const double at = dot(toA, normal) / slope;
    if (!(at >= 0)) return false;
    hit = {at, normal, {u / volume, v / volume, w / volume}};
    return true;
}

}  // namespace

int Mesh::IntersectRay(Ray& ray, float& at, Point3& norm) {
    DWORD face;
    Point3 weights;
    return IntersectRay(ray, at, norm, face, weights);
}

int Mesh::IntersectRay(Ray& ray, float& at, Point3& norm, DWORD& fi, Point3& bary) {
    const Vector direction = difference(ray.dir, Point3(0, 0, 0));
    Hit nearest{INFINITY, {}, {}}, hit{};
    int nearestFace = -1;
    for (int i = 0; i < numFaces; ++i) {
        if (!maxhost::namesVertices(*this, faces[i])) continue;
        const DWORD* const v = faces[i].v;
        if (meets(ray.p, direction, verts[v[0]], verts[v[1]], verts[v[2]], hit) && hit.at < nearest.at) {
            nearest = hit;
            nearestFace = i;
        }
    }
    if (nearestFace < 0) return 0;

    const Vector& n = nearest.normal;
    const double length = std::sqrt(dot(n, n));
    at = static_cast<float>(nearest.at);
    norm = Point3(n.x / length, n.y / length, n.z / length);
    fi = static_cast<DWORD>(nearestFace);
    bary = Point3(nearest.weights[0], nearest.weights[1], nearest.weights[2]);
    return 1;
}
