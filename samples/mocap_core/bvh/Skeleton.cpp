#include "samples/mocap_core/bvh/Skeleton.h"

#include <cmath>

namespace qvo::zmx::mocap {

namespace {

constexpr double kRadiansPerDegree = 3.14159265358979323846 / 180.0;

/// The rotation about axis 0, 1 or 2 for row vectors: the transposed of the usual column-vector matrix.
Matrix4 rotation(int axis, double degrees) {
    const double angle = degrees * kRadiansPerDegree;
    const int second = (axis + 1) % 3;
    const int third = (axis + 2) % 3;
    Matrix4 matrix = kIdentityMatrix4;
    matrix.m[second][second] = matrix.m[third][third] = std::cos(angle);
    matrix.m[second][third] = std::sin(angle);
    matrix.m[third][second] = -std::sin(angle);
    return matrix;
}

int axisOf(Channel channel) {
    return static_cast<int>(channel) % 3;
}

}  // namespace

void Skeleton::evaluate(std::size_t frame, std::vector<Matrix4>& world) const {
    const double* values = clip_.frame(frame);
    world.resize(clip_.joints.size());
    for (std::size_t i = 0; i < clip_.joints.size(); ++i) {
        const Joint& joint = clip_.joints[i];
        const Matrix4 local = localTransform(joint, values + joint.firstChannel);
        world[i] = joint.parent < 0 ? local : local * world[static_cast<std::size_t>(joint.parent)];
    }
}

Matrix4 Skeleton::localTransform(const Joint& joint, const double* values) const {
    std::array<double, 3> position = joint.offset;
    Matrix4 local = kIdentityMatrix4;
    for (std::size_t i = 0; i < joint.channels.size(); ++i) {
        const Channel channel = joint.channels[i];
        if (isPosition(channel)) {
            position[static_cast<std::size_t>(axisOf(channel))] = values[i];
        } else {
            local = rotation(axisOf(channel), values[i]) * local;
        }
    }
    for (std::size_t axis = 0; axis < 3; ++axis)
        local.m[3][axis] = position[axis] * metresPerUnit_;
    return local;
}

}  // namespace qvo::zmx::mocap
