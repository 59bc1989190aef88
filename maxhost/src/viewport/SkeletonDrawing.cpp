#include "maxhost/src/viewport/SkeletonDrawing.h"

#include <algorithm>
#include <cmath>

#include "maxhost/src/viewport/Lighting.h"
#include "maxhost/src/viewport/Palette.h"
#include "maxhost/src/viewport/SceneNodes.h"

namespace maxhost {

namespace {

/// The node's wire colour, made bright enough to stand out from the background.
LinearColor readableColor(INode& node) {
    constexpr float kLeast = 0.22f;
    const LinearColor color{Color(node.GetWireColor())};
    const float shortfall = (kLeast - color.luminance()) / (1 - color.luminance());
    if (shortfall <= 0) return color;
    return color * (1 - shortfall) + LinearColor(1, 1, 1) * shortfall;
}

/// Any direction square to `axis`.
Point3 squareTo(const Point3& axis) {
    const Point3 other = std::fabs(axis.z) < 0.9f * Length(axis) ? Point3(0, 0, 1) : Point3(1, 0, 0);
    return Normalize(axis ^ other);
}

}  // namespace

template <class Triangle>
void SkeletonDrawing::forEachSide(const Point3& from, const Point3& to, Triangle triangle) const {
    const Point3 axis = to - from;
    const double length = Length(axis);
    if (!(length > 0) || !std::isfinite(length)) return;
    // Two pyramids on a common square base, a sixth of the way along: thick where the bone starts.
    const auto reach = static_cast<float>(std::min(length * 0.11, figure_ * 0.024));
    const Point3 base = from + axis * (1.0f / 6), side = squareTo(axis);
    const Point3 other = Normalize(axis ^ side);
    const Point3 rim[4] = {base + side * reach, base + other * reach, base - side * reach,
                           base - other * reach};
    for (int i = 0; i < 4; ++i) {
        for (const Point3& tip : {from, to}) {
            const Point3 corners[3] = {tip, rim[i], rim[(i + 1) % 4]};
            triangle(corners);
        }
    }
}

void SkeletonDrawing::drawShadows(const std::vector<INode*>& nodes, TimeValue time) {
    const LinearColor dark(palette::kShadow);
    for (INode* node : nodes) {
        INode* parent = isJoint(*node) ? parentJoint(*node) : nullptr;
        if (parent == nullptr) continue;
        const Point3 from = parent->GetNodeTM(time).GetTrans(), to = node->GetNodeTM(time).GetTrans();
        if (from.z < 0 || to.z < 0) continue;
        forEachSide(from, to, [&](const Point3(&corners)[3]) {
            Point3 flat[3];
            for (int i = 0; i < 3; ++i)
                flat[i] = Point3(corners[i].x, corners[i].y, 0.0f);
            painter_.triangle(flat, {dark, dark, dark});
        });
        painter_.line(Point3(from.x, from.y, 0.0f), Point3(to.x, to.y, 0.0f), 2, dark);
    }
}

void SkeletonDrawing::draw(const std::vector<INode*>& nodes, TimeValue time) {
    for (INode* node : nodes) {
        if (!isJoint(*node)) continue;
        const LinearColor color = readableColor(*node);
        const Point3 place = node->GetNodeTM(time).GetTrans();
        painter_.ball(place, jointRadius(), 1.2, color);
        if (INode* parent = parentJoint(*node)) drawBone(parent->GetNodeTM(time).GetTrans(), place, color);
    }
}

void SkeletonDrawing::drawBone(const Point3& from, const Point3& to, const LinearColor& color) {
    const Point3 toEye = painter_.camera().position() - from;
    forEachSide(from, to, [&](const Point3(&corners)[3]) {
        const Point3 normal = (corners[1] - corners[0]) ^ (corners[2] - corners[0]);
        const LinearColor shade = lit(color, normal, toEye);
        painter_.triangle(corners, {shade, shade, shade});
    });
    painter_.line(from, to, 1.2, lit(color, Point3(), toEye), 0.5f);
}

}  // namespace maxhost
