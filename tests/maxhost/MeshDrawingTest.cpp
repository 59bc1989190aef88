#include <triobj.h>

#include "tests/maxhost/ViewRig.h"

namespace {

/// A square of 10 by 10 that faces the viewer. The edge between its two faces is hidden.
void square(Mesh& mesh, float y = 0, float start = 0) {
    mesh.setNumVerts(4);
    for (int i = 0; i < 4; ++i)
        mesh.setVert(i, Point3(start + (i % 3 == 0 ? 0.0f : 10.0f), y, start + (i < 2 ? 0.0f : 10.0f)));
    mesh.setNumFaces(2);
    mesh.faces[0].setVerts(0, 1, 2);
    mesh.faces[1].setVerts(2, 3, 0);
    for (int i = 0; i < 2; ++i)
        mesh.faces[i].setEdgeVisFlags(1, 1, 0);
}

const Box3 kSquare(Point3(0, 0, 0), Point3(10, 0, 10));
const Point3 kInFace(7, 0, 3), kInOtherFace(3, 0, 7), kOnDiagonal(4, 0, 4), kOnEdge(10, 0, 5);
/// Seen from its back.
const Matrix3 kTurned = RotateZMatrix(3.14159265f) * TransMatrix(Point3(10, 0, 0));
/// Mirrored: what faced the viewer still does.
const Matrix3 kMirrored = ScaleMatrix(Point3(1, 1, -1)) * TransMatrix(Point3(0, 0, 10));

TEST(MeshDrawing, ModesDecideWhatIsSeen) {
    constexpr DWORD kFilled = GW_ILLUM | GW_FLAT | GW_Z_BUFFER;
    constexpr DWORD kWire = GW_WIREFRAME | GW_FLAT | GW_Z_BUFFER;
    const struct {
        const char* name;
        DWORD limits;
        const Matrix3& tm;
        const char *inFace, *onDiagonal, *onEdge;
    } rows[] = {
        {"filled", kFilled, Matrix3(1), "r", "r", "r"},
        {"wireframe", kWire, Matrix3(1), "black", "black", "g"},
        {"all edges", kWire | GW_ALL_EDGES, Matrix3(1), "black", "g", "g"},
        {"back", kFilled, kTurned, "r", "r", "r"},
        {"culled back", kFilled | GW_BACKCULL, kTurned, "black", "black", "black"},
        {"two-sided back", kFilled | GW_BACKCULL | GW_TWO_SIDED, kTurned, "r", "r", "r"},
        {"culled mirrored front", kFilled | GW_BACKCULL, kMirrored, "r", "r", "r"},
        {"culled wire front", kWire | GW_BACKCULL, Matrix3(1), "black", "black", "g"},
    };
    for (const auto& row : rows) {
        ViewRig rig(kSquare);
        Mesh mesh;
        square(mesh);
        rig.window().setRndLimits(row.limits);
        rig.window().setTransform(row.tm);
        rig.window().setColor(FILL_COLOR, 1, 0, 0);
        rig.window().setColor(LINE_COLOR, 0, 1, 0);
        mesh.render(&rig.window(), nullptr, nullptr, COMP_ALL);
        EXPECT_EQ(rig.colorAt(kInFace), row.inFace) << row.name;
        EXPECT_EQ(rig.colorAt(kOnDiagonal), row.onDiagonal) << row.name;
        EXPECT_EQ(rig.colorAt(kOnEdge), row.onEdge) << row.name;
    }
}

TEST(MeshDrawing, NearerMeshHidesFartherOneDrawnLater) {
    ViewRig rig(kSquare);
    Mesh front, back;
    square(front, 0);
    square(back, 3, 4);
    rig.window().setColor(FILL_COLOR, 1, 0, 0);
    front.render(&rig.window(), nullptr, nullptr, COMP_ALL);
    rig.window().setColor(FILL_COLOR, 0, 0, 1);
    back.render(&rig.window(), nullptr, nullptr, COMP_ALL);
    EXPECT_EQ(rig.colorAt(kInFace), "r");
    EXPECT_EQ(rig.colorAt(Point3(12, 3, 12)), "b");
}

TEST(MeshDrawing, MaterialIdsWrapAroundAndBadFacesAreLeftOut) {
    ViewRig rig(kSquare);
    Mesh mesh;
    square(mesh);
    mesh.setNumFaces(3, TRUE);
    mesh.faces[2].setVerts(0, 1, -1);
    mesh.faces[0].setMatID(7);
    mesh.faces[1].setMatID(4);
    Material materials[2];
    materials[0].Kd = Point3(0, 0, 1);
    materials[1].Kd = Point3(0, 1, 0);
    mesh.render(&rig.window(), materials, nullptr, COMP_ALL, 2);
    EXPECT_EQ(rig.colorAt(kInFace), "g");
    EXPECT_EQ(rig.colorAt(kInOtherFace), "b");
}

struct Pick {
    const char* name;
    DWORD modes;
    bool turned;
    int type, crossing;
    Point3 from, to;     ///< the region's corners in the world; of a circle its centre and a place on its rim
    IPoint2 pixelsAway;  ///< added to both
    bool hit;
};

TEST(MeshPicking, RegionsAndModes) {
    const Point3 beyond(-1, 0, -1), opposite(11, 0, 11), middle(5, 0, 5);
    const Pick rows[] = {
        {"point in face", 0, false, HITTYPE_POINT, 1, kInFace, {}, {0, 0}, true},
        {"point near edge", 0, false, HITTYPE_POINT, 1, kOnEdge, {}, {3, 0}, true},
        {"wire: point near edge", GW_WIREFRAME, false, HITTYPE_POINT, 1, kOnEdge, {}, {-3, 0}, true},
        {"wire: hidden edge", GW_WIREFRAME, false, HITTYPE_POINT, 1, kOnDiagonal, {}, {0, 0}, false},
        {"culled back", GW_BACKCULL, true, HITTYPE_POINT, 1, kInFace, {}, {0, 0}, false},
        {"box crosses", 0, false, HITTYPE_BOX, 1, kInFace, opposite, {0, 0}, true},
        {"box inside face crosses", 0, false, HITTYPE_BOX, 1, kInFace, kInFace, {0, 0}, true},
        {"box holds part", 0, false, HITTYPE_BOX, 0, middle, opposite, {0, 0}, false},
        {"box holds all", 0, false, HITTYPE_BOX, 0, beyond, opposite, {0, 0}, true},
        {"circle crosses", 0, false, HITTYPE_CIRCLE, 1, opposite, {10, 0, 9}, {0, 0}, true},
        {"circle holds all", 0, false, HITTYPE_CIRCLE, 0, middle, opposite, {0, 0}, true},
        {"circle holds part", 0, false, HITTYPE_CIRCLE, 0, middle, kOnEdge, {0, 0}, false},
    };
    Mesh mesh;
    square(mesh);
    for (const Pick& row : rows) {
        ViewRig rig(kSquare);
        rig.window().setRndLimits(GW_FLAT | row.modes);
        rig.window().setTransform(row.turned ? kTurned : Matrix3(1));
        IPoint2 pixels[2] = {rig.pixelOf(row.from) + row.pixelsAway, rig.pixelOf(row.to) + row.pixelsAway};
        HitRegion region;
        MakeHitRegion(region, row.type, row.crossing, 4, pixels);
        for (const int abortOnHit : {0, 1})
            EXPECT_EQ(mesh.select(&rig.window(), nullptr, &region, abortOnHit) != 0, row.hit) << row.name;
        EXPECT_EQ(rig.window().getRndLimits(), GW_FLAT | row.modes) << row.name;
    }
}

}  // namespace
