#include "samples/mocap_core/model/JointLook.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <unordered_set>
#include <utility>

namespace qvo::zmx::mocap {

namespace {

using util::Point3d;

constexpr double kBallShare = 0.08;       // of the longest bone
constexpr double kLoneBallRadius = 0.02;  // meters, where there is no bone at all
constexpr double kCollarShare = 0.15;     // where a bone is thickest, from its joint on
constexpr double kThickness = 0.09;       // of its length
constexpr double kCageThickness = 0.2;

/// Texts that tell sides; one stands where its counterpart would stand in the joint on the other side.
constexpr std::pair<const char*, const char*> kSideWords[] = {
    {"Left", "Right"}, {"left", "right"}, {"LEFT", "RIGHT"}};
constexpr std::pair<char, char> kSideLetters[] = {{'L', 'R'}, {'l', 'r'}};

Point3d scaled(const Point3d& v, double factor) {
    return {v.x * factor, v.y * factor, v.z * factor};
}

Point3d sum(const Point3d& a, const Point3d& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

Point3d cross(const Point3d& a, const Point3d& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

double length(const Point3d& v) {
    return std::sqrt(v.x * v.x + v.y * v.y + v.z * v.z);
}

Point3d unit(const Point3d& v) {
    return scaled(v, 1.0 / length(v));
}

/// Any direction at a right angle to the unit vector `axis`.
Point3d sideways(const Point3d& axis) {
    const Point3d other = std::abs(axis.x) < 0.6 ? Point3d{1, 0, 0} : Point3d{0, 1, 0};
    return unit(cross(axis, other));
}

/// Two four-sided points base to base, faces counter-clockwise seen from outside. `ring`: around the axis
/// from `start` to `end`, counter-clockwise seen from the end.
util::CMesh octahedron(const Point3d& start, const Point3d& end, const std::array<Point3d, 4>& ring) {
    util::CMesh mesh;
    mesh.vertices = {start, end, ring[0], ring[1], ring[2], ring[3]};
    for (int i = 0; i < 4; ++i) {
        const int here = 2 + i;
        const int next = 2 + (i + 1) % 4;
        mesh.faces.insert(mesh.faces.end(), {1, here, next, 0, next, here});
    }
    return mesh;
}

/// `thickest`: where on the axis the ring is.
util::CMesh spindle(const Point3d& start, const Point3d& end, const Point3d& thickest, double radius) {
    const Point3d axis = unit(sum(end, scaled(start, -1.0)));
    const Point3d across = scaled(sideways(axis), radius);
    const Point3d up = cross(axis, across);
    return octahedron(start, end,
                      {sum(thickest, across), sum(thickest, up), sum(thickest, scaled(across, -1.0)),
                       sum(thickest, scaled(up, -1.0))});
}

bool isBone(const Point3d& tip) {
    const double size = length(tip);
    return std::isnormal(size) && std::isnormal(size * size);
}

std::vector<Point3d> tipsOf(const Clip& clip, double metresPerUnit) {
    std::vector<Point3d> tips(clip.joints.size());
    const auto take = [&](int joint, const std::array<double, 3>& offset) {
        if (joint < 0) return;
        Point3d& tip = tips[static_cast<std::size_t>(joint)];
        if (!isBone(tip)) tip = scaled({offset[0], offset[1], offset[2]}, metresPerUnit);
    };
    for (const Joint& joint : clip.joints)
        take(joint.parent, joint.offset);
    for (const EndSite& site : clip.endSites)
        take(site.joint, site.offset);
    return tips;
}

std::string replaced(std::string name, std::size_t at, std::size_t count, const std::string& by) {
    return name.replace(at, count, by);
}

/// True when `name` has a counterpart in `names`, with `word` in it exchanged for `other`.
bool hasCounterpart(const std::string& name, const std::unordered_set<std::string>& names,
                    const std::string& word, const std::string& other) {
    const std::size_t at = name.find(word);
    return at != std::string::npos && names.count(replaced(name, at, word.size(), other)) != 0;
}

bool hasCounterpart(const std::string& name, const std::unordered_set<std::string>& names, char letter,
                    char other) {
    const std::size_t last = name.size() - 1;
    return (name.front() == letter && names.count(replaced(name, 0, 1, {other})) != 0) ||
           (name.back() == letter && names.count(replaced(name, last, 1, {other})) != 0);
}

Side sideOf(const std::string& name, const std::unordered_set<std::string>& names) {
    for (const auto& [left, right] : kSideWords) {
        if (hasCounterpart(name, names, std::string(left), right)) return Side::left;
        if (hasCounterpart(name, names, std::string(right), left)) return Side::right;
    }
    for (const auto& [left, right] : kSideLetters) {
        if (hasCounterpart(name, names, left, right)) return Side::left;
        if (hasCounterpart(name, names, right, left)) return Side::right;
    }
    return Side::centre;
}

}  // namespace

JointLook::JointLook(const Clip& clip, double metresPerUnit, Bones bones)
    : bones_(bones), tips_(tipsOf(clip, metresPerUnit)) {
    double longest = 0.0;
    for (const Point3d& tip : tips_)
        if (isBone(tip)) longest = std::max(longest, length(tip));
    ballRadius_ = longest > 0.0 ? longest * kBallShare : kLoneBallRadius;

    std::unordered_set<std::string> names;
    for (const Joint& joint : clip.joints)
        names.insert(joint.name);
    for (const Joint& joint : clip.joints)
        sides_.push_back(sideOf(joint.name, names));
}

util::CMesh JointLook::shape(std::size_t joint) const {
    const Point3d& tip = tips_[joint];
    if (!isBone(tip)) return spindle({0, -ballRadius_, 0}, {0, ballRadius_, 0}, {0, 0, 0}, ballRadius_);
    const double thickness = bones_ == Bones::edges ? kCageThickness : kThickness;
    return spindle({0, 0, 0}, tip, scaled(tip, kCollarShare), length(tip) * thickness);
}

Color JointLook::color(std::size_t joint) const {
    switch (side(joint)) {
        case Side::left:
            return {0.95f, 0.45f, 0.20f};
        case Side::right:
            return {0.20f, 0.55f, 0.95f};
        case Side::centre:
            break;
    }
    return {0.85f, 0.80f, 0.35f};
}

}  // namespace qvo::zmx::mocap
