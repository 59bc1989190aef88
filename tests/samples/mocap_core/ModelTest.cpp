#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "samples/mocap_core/model/JointLook.h"
#include "samples/mocap_core/model/ObjReader.h"

namespace qvo::zmx::mocap {
namespace {

std::string textOf(const std::vector<int>& indices) {
    std::string text;
    for (const int index : indices)
        text += (text.empty() ? "" : " ") + std::to_string(index);
    return text;
}

/// "faces | texture faces", or what is wrong with the file "m".
std::string facesOf(const std::string& obj) {
    try {
        const util::CMesh mesh = ObjReader::parse(obj, "m");
        return textOf(mesh.faces) + " | " + textOf(mesh.textureFaces);
    } catch (const FileError& error) {
        return error.what();
    }
}

const std::string kSquare = "v 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 0\n";

TEST(ObjReader, ReadsFacesOfEveryForm) {
    const struct {
        std::string text;
        const char* expected;
    } cases[] = {
        {kSquare + "f 1 2 3 4", "0 1 2 0 2 3 | "},
        {"\xEF\xBB\xBF" + kSquare + "f 1 2 4", "0 1 3 | "},
        {kSquare + "f -4 -3 -2\r\nf 2//1 3//1 4//1\r\n", "0 1 2 1 2 3 | "},
        {kSquare + "vt 0 0\nvt 1\nf 1/2 2/1/1 3/-1/1\nf 1 2 3", "0 1 2 0 1 2 | 1 0 1 0 0 0"},
        {kSquare + "vn 0 0 1\nusemtl x\nl 1 2\ng a\ns off # f 9\nf 1 2 \\\n 3 # 4\n", "0 1 2 | "},
        {"v 1 2 3 0.5 0.5 0.5\nv +1 2e0 .3 1\nv 0 0 0\nf 3 2 1", "2 1 0 | "},
        {"", "m:0: the model has no faces"},
        {kSquare, "m:0: the model has no faces"},
        {"v 1 2\nf 1 1 1", "m:1: a vertex of too few numbers"},
        {"# a\nv 1 2 x\n", "m:2: \"x\" is not a number for a vertex"},
        {"v 1 2 nan\n", "m:1: \"nan\" is not a number for a vertex"},
        {"vt\n", "m:1: a texture vertex of too few numbers"},
        {kSquare + "f 1 2\n", "m:5: a face of fewer than 3 corners"},
        {kSquare + "f 1 2 5\n", "m:5: there is no vertex \"5\" before this line"},
        {kSquare + "f 0 1 2\n", "m:5: there is no vertex \"0\" before this line"},
        {kSquare + "f 1 2 \\\n -5\n", "m:5: there is no vertex \"-5\" before this line"},
        {kSquare + "f 1/1 2 3\n", "m:5: there is no texture vertex \"1\" before this line"},
        {kSquare + "f 1 2 3.5\n", "m:5: \"3.5\" is not the number of a vertex"},
        {kSquare + "f 1 2 99999999999999999999\n",
         "m:5: \"99999999999999999999\" is not the number of a vertex"},
    };
    for (const auto& row : cases)
        EXPECT_EQ(facesOf(row.text), row.expected) << row.text;
}

Clip clipOf(const std::vector<std::pair<std::string, int>>& joints) {
    Clip clip;
    for (const auto& [name, parent] : joints) {
        Joint joint;
        joint.name = name;
        joint.parent = parent;
        joint.offset = {3.0, -4.0, 0.0};
        clip.joints.push_back(joint);
    }
    return clip;
}

TEST(JointLook, SidesAreToldByNames) {
    const Clip clip = clipOf({{"Hips", -1},
                              {"LeftUpLeg", 0},
                              {"RightUpLeg", 0},
                              {"lowerback", 0},
                              {"lfemur", 0},
                              {"rfemur", 0},
                              {"LHipJoint", 0},
                              {"RHipJoint", 0},
                              {"hand_l", 0},
                              {"hand_r", 0},
                              {"LeftOver", 0},
                              {"Root", 0},
                              {"forearm.R", 0},
                              {"forearm.L", 0}});
    const std::string sides = "clrclrlrlrccrl";
    const JointLook look(clip, 1.0, Bones::solid);
    for (std::size_t i = 0; i < sides.size(); ++i) {
        const Side expected = sides[i] == 'l' ? Side::left : sides[i] == 'r' ? Side::right : Side::centre;
        EXPECT_EQ(look.side(i), expected) << clip.joints[i].name;
    }
}

/// Six times the volume, above 0 for a closed mesh whose faces are counter-clockwise from outside; 0 when an
/// edge lacks its neighbour.
double volumeOf(const util::CMesh& mesh) {
    std::map<std::pair<int, int>, int> edges;
    double volume = 0.0;
    for (std::size_t i = 0; i < mesh.faces.size(); i += 3) {
        const auto corner = [&](std::size_t k) { return mesh.faces[i + k % 3]; };
        for (std::size_t k = 0; k < 3; ++k) {
            ++edges[{corner(k), corner(k + 1)}];
            --edges[{corner(k + 1), corner(k)}];
        }
        const auto point = [&](std::size_t k) { return mesh.vertices[static_cast<std::size_t>(corner(k))]; };
        const util::Point3d a = point(0), b = point(1), c = point(2);
        volume +=
            a.x * (b.y * c.z - b.z * c.y) + a.y * (b.z * c.x - b.x * c.z) + a.z * (b.x * c.y - b.y * c.x);
    }
    for (const auto& [edge, count] : edges)
        if (count != 0) return 0.0;
    return volume;
}

TEST(JointLook, BonesAreClosedAndReachTheNextJoint) {
    Clip clip = clipOf({{"a", -1}, {"b", 0}, {"c", 1}, {"d", 1}});
    clip.joints[2].offset = {0.0, 0.0, 0.0};
    clip.endSites = {{2, {0.0, 7.0, 0.0}}};
    const JointLook look(clip, 0.01, Bones::edges);
    const struct {
        double x, y;  // where the bone ends, clip units; for a ball its top
    } tips[] = {{3, -4}, {3, -4}, {0, 7}, {0, 0.56}};
    for (std::size_t joint = 0; joint < 4; ++joint) {
        const util::CMesh shape = look.shape(joint);
        EXPECT_GT(volumeOf(shape), 0.0) << joint;
        EXPECT_NEAR(shape.vertices[1].x, tips[joint].x * 0.01, 1e-12) << joint;
        EXPECT_NEAR(shape.vertices[1].y, tips[joint].y * 0.01, 1e-12) << joint;
    }
    EXPECT_GT(volumeOf(JointLook(clipOf({{"a", -1}}), 1.0, Bones::solid).shape(0)), 0.0);
}

}  // namespace
}  // namespace qvo::zmx::mocap
