#include <gtest/gtest.h>
#include <mesh.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace {

/// Rays that are aimed at a place inside a known face of a soup must hit that face, or another one on the
/// way.
TEST(MeshRay, AimedRaysHitTheFirstFaceOnTheirWay) {
    std::mt19937 engine(20090401);
    std::uniform_real_distribution<float> unit(-1, 1);
    const auto inBox = [&](float half) { return Point3(unit(engine), unit(engine), unit(engine)) * half; };
    constexpr int kFaces = 120;
    Mesh mesh;
    mesh.setNumVerts(3 * kFaces);
    mesh.setNumFaces(kFaces);
    for (int i = 0; i < kFaces; ++i) {
        const Point3 middle = inBox(100);
        for (int k = 0; k < 3; ++k)
            mesh.setVert(3 * i + k, middle + inBox(40));
        mesh.faces[i].setVerts(3 * i, 3 * i + 1, 3 * i + 2);
    }
    int direct = 0;
    for (int i = 0; i < 3000; ++i) {
        const Point3* const corners = &mesh.verts[3 * (i % kFaces)];
        const float u = 0.5f + 0.4f * unit(engine), v = (1 - u) * (0.5f + 0.4f * unit(engine));
        const Point3 target = corners[0] * u + corners[1] * v + corners[2] * (1 - u - v);
        Ray ray;
        ray.p = inBox(120);
        ray.dir = (target - ray.p) * std::pow(10.0f, static_cast<float>(i % 5 - 2));
        const float wanted = Length(target - ray.p) / Length(ray.dir);
        float at = -1;
        Point3 norm, bary;
        DWORD face = 0;
        ASSERT_TRUE(mesh.IntersectRay(ray, at, norm, face, bary)) << i;
        EXPECT_LE(at, wanted * (1 + 1e-4f)) << i;
        if (static_cast<int>(face) == i % kFaces) ++direct;
        const Point3 &a = mesh.verts[3 * face], &b = mesh.verts[3 * face + 1], &c = mesh.verts[3 * face + 2];
        EXPECT_GE(std::min({bary.x, bary.y, bary.z}), -1e-5f) << i;
        EXPECT_TRUE((a * bary.x + b * bary.y + c * bary.z).Equals(ray.p + ray.dir * at, 1e-3f)) << i;
        EXPECT_NEAR(norm.Length(), 1, 1e-6);
        EXPECT_GT(norm % ((b - a) ^ (c - a)), 0) << i;
    }
    EXPECT_GT(direct, 300);
    EXPECT_LT(direct, 2700) << "many faces stand in the way of others";
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
