#include <gtest/gtest.h>
#include <mesh.h>

#include <array>
#include <cmath>
#include <random>

namespace {

using Real = long double;
using Triple = std::array<Real, 3>;

Triple wide(const Point3& p) {
    return {p.x, p.y, p.z};
}
Triple minus(const Triple& a, const Triple& b) {
    return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}
Triple cross(const Triple& a, const Triple& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}
Real dot(const Triple& a, const Triple& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

/// The judge: every face, by the point where the ray meets its plane and the areas around that point.
struct Judge {
    Real at = INFINITY;
    int face = -1;

    Judge(const Mesh& mesh, const Ray& ray) {
        const Triple origin = wide(ray.p), direction = wide(ray.dir);
        for (int i = 0; i < mesh.numFaces; ++i) {
            Triple corners[3];
            for (int k = 0; k < 3; ++k)
                corners[k] = wide(mesh.verts[mesh.faces[i].v[k]]);
            const Triple normal = cross(minus(corners[1], corners[0]), minus(corners[2], corners[0]));
            const Real slope = dot(direction, normal);
            const Real distance = dot(minus(corners[0], origin), normal) / slope;
            if (slope == 0 || distance < 0 || distance >= at) continue;
            Triple point;
            for (size_t k = 0; k < 3; ++k)
                point[k] = origin[k] + distance * direction[k];
            bool inside = true;
            for (int k = 0; k < 3; ++k) {
                const Triple edge = minus(corners[(k + 1) % 3], corners[k]);
                inside = inside && dot(normal, cross(edge, minus(point, corners[k]))) >= 0;
            }
            if (!inside) continue;
            at = distance;
            face = i;
        }
    }
};

class RandomPoints {
  public:
    Point3 inBox(float half) { return Point3(unit_(engine_), unit_(engine_), unit_(engine_)) * half; }

  private:
    std::mt19937 engine_{20090401};
    std::uniform_real_distribution<float> unit_{-1, 1};
};

void triangleSoup(Mesh& mesh, RandomPoints& random, int count, float half, float size) {
    mesh.setNumVerts(3 * count);
    mesh.setNumFaces(count);
    for (int i = 0; i < count; ++i) {
        const Point3 middle = random.inBox(half);
        for (int k = 0; k < 3; ++k)
            mesh.setVert(3 * i + k, middle + random.inBox(size));
        mesh.faces[i].setVerts(3 * i, 3 * i + 1, 3 * i + 2);
    }
}

/// A closed ball around the origin; the faces look outwards.
void ball(Mesh& mesh, float radius, int around) {
    const int rings = around / 2 - 1;
    mesh.setNumVerts(rings * around + 2);
    mesh.setNumFaces(2 * rings * around);
    const double step = 2 * std::acos(-1.0) / around;
    for (int r = 0; r < rings; ++r) {
        for (int i = 0; i < around; ++i) {
            const double width = std::sin((r + 1) * step), height = std::cos((r + 1) * step);
            mesh.setVert(r * around + i,
                         Point3(width * std::cos(i * step), width * std::sin(i * step), height) * radius);
        }
    }
    const int top = rings * around, bottom = top + 1;
    mesh.setVert(top, Point3(0.0f, 0.0f, radius));
    mesh.setVert(bottom, Point3(0.0f, 0.0f, -radius));
    int face = 0;
    for (int i = 0; i < around; ++i) {
        const int next = (i + 1) % around, last = (rings - 1) * around;
        mesh.faces[face++].setVerts(top, i, next);
        mesh.faces[face++].setVerts(bottom, last + next, last + i);
        for (int r = 0; r + 1 < rings; ++r) {
            const int upper = r * around, lower = upper + around;
            mesh.faces[face++].setVerts(upper + i, lower + i, lower + next);
            mesh.faces[face++].setVerts(upper + i, lower + next, upper + next);
        }
    }
}

/// Compares 5,000 rays with the judge; returns how many hit.
int compareWithJudge(Mesh& mesh, RandomPoints& random, float half) {
    int hits = 0;
    for (int i = 0; i < 5000; ++i) {
        Ray ray;
        ray.p = random.inBox(half);
        ray.dir = random.inBox(1) * std::pow(10.0f, static_cast<float>(i % 5 - 2));
        const Judge judge(mesh, ray);
        float at = -1;
        Point3 norm, bary;
        DWORD face = 0;
        const int hit = mesh.IntersectRay(ray, at, norm, face, bary);
        EXPECT_EQ(hit != 0, judge.face >= 0) << "ray " << i;
        if (hit == 0 || judge.face < 0) continue;
        ++hits;
        EXPECT_NEAR(at, static_cast<double>(judge.at), 1e-6 * static_cast<double>(judge.at)) << "ray " << i;
        EXPECT_EQ(static_cast<int>(face), judge.face) << "ray " << i;
        const DWORD* const v = mesh.faces[face].v;
        const Point3 &a = mesh.verts[v[0]], &b = mesh.verts[v[1]], &c = mesh.verts[v[2]];
        EXPECT_TRUE((a * bary.x + b * bary.y + c * bary.z).Equals(ray.p + ray.dir * at, 1e-5f * half));
        EXPECT_NEAR(norm.Length(), 1, 1e-6);
        EXPECT_GT(norm % ((b - a) ^ (c - a)), 0) << "ray " << i;
    }
    return hits;
}

TEST(MeshRay, AgreesWithJudgeOnTriangleSoups) {
    RandomPoints random;
    Mesh mesh;
    triangleSoup(mesh, random, 120, 100, 40);
    EXPECT_GT(compareWithJudge(mesh, random, 120), 1000);
}

TEST(MeshRay, AgreesWithJudgeOnClosedBall) {
    RandomPoints random;
    Mesh mesh;
    ball(mesh, 100, 16);
    EXPECT_GT(compareWithJudge(mesh, random, 100), 2500);
}

TEST(MeshRay, NeverSlipsOutOfClosedBall) {
    RandomPoints random;
    Mesh mesh;
    ball(mesh, 3.7f, 24);
    for (int i = 0; i < mesh.numFaces; ++i) {
        const Point3 start = random.inBox(1);
        for (int k = 0; k < 3; ++k) {
            const Point3& corner = mesh.verts[mesh.faces[i].v[k]];
            const Point3& next = mesh.verts[mesh.faces[i].v[(k + 1) % 3]];
            for (const Point3& target : {corner, (corner + next) / 2.0f}) {
                Ray ray;
                ray.p = start;
                ray.dir = target - start;
                float at = 0;
                Point3 norm;
                EXPECT_TRUE(mesh.IntersectRay(ray, at, norm)) << "face " << i;
                EXPECT_NEAR(at, 1, 1e-2);
            }
        }
    }
}

TEST(MeshRay, EdgeCases) {
    Mesh mesh;
    mesh.setNumVerts(3);
    mesh.setVert(0, Point3(0, 0, 0));
    mesh.setVert(1, Point3(4, 0, 0));
    mesh.setVert(2, Point3(0, 4, 0));
    mesh.setNumFaces(3);
    mesh.faces[0].setVerts(0, 1, 99);
    mesh.faces[1].setVerts(0, 1, 1);
    mesh.faces[2].setVerts(0, 1, 2);
    const float nan = std::nanf("");
    const struct {
        const char* name;
        Point3 p, dir;
        int hit;
        float at;
    } rows[] = {
        {"counts in lengths of the direction", {1, 1, 6}, {0, 0, -2}, 1, 3},
        {"from behind", {1, 1, -6}, {0, 0, 3}, 1, 2},
        {"behind the origin", {1, 1, 6}, {0, 0, 1}, 0, 0},
        {"origin on the face", {1, 1, 0}, {0, 0, 1}, 1, 0},
        {"through a corner", {0, 0, 1}, {0, 0, -1}, 1, 1},
        {"beside", {3, 3, 1}, {0, 0, -1}, 0, 0},
        {"within the plane", {-1, 1, 0}, {1, 0, 0}, 0, 0},
        {"no direction", {1, 1, 0}, {0, 0, 0}, 0, 0},
        {"not a number", {1, 1, 1}, {0.0f, nan, -1.0f}, 0, 0},
    };
    for (const auto& row : rows) {
        Ray ray;
        ray.p = row.p;
        ray.dir = row.dir;
        float at = 77;
        Point3 norm(7, 7, 7);
        EXPECT_EQ(mesh.IntersectRay(ray, at, norm), row.hit) << row.name;
        EXPECT_EQ(at, row.hit ? row.at : 77) << row.name;
        EXPECT_EQ(norm, row.hit ? Point3(0, 0, 1) : Point3(7, 7, 7)) << row.name;
    }
}

}  // namespace
