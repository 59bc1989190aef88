#include "adaptor/max/controllers/Interpolation.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <optional>

#include "adaptor/max/nodes/HostSpace.h"

namespace qvo::zmx::adaptor::max {
namespace {

using Vector = std::array<double, 3>;

/// Three unit vectors at right angles, right-handed.
using Axes = std::array<Vector, 3>;

constexpr Axes kUnitAxes{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};

/// A direction shorter than this, made from unit vectors, is rounding.
constexpr double kTinyLength = 1e-9;

struct Quaternion {
    Vector v;
    double w;
};

std::int32_t ticksBetween(TimeValue from, TimeValue to) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(to) - static_cast<std::uint32_t>(from));
}

double dot(const Vector& a, const Vector& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Vector cross(const Vector& a, const Vector& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

Vector scaled(const Vector& a, double factor) {
    return {a[0] * factor, a[1] * factor, a[2] * factor};
}

double length(const Vector& a) {
    return std::sqrt(dot(a, a));
}

Vector row(const Matrix4& matrix, int index) {
    return {matrix.m[index][0], matrix.m[index][1], matrix.m[index][2]};
}

double determinant(const Matrix4& matrix) {
    return dot(row(matrix, 0), cross(row(matrix, 1), row(matrix, 2)));
}

/// The part of the unit vector `a` at right angles to the unit vector `axis`, made a unit vector; none when
/// they are parallel or `a` is zero.
std::optional<Vector> perpendicularPart(const Vector& a, const Vector& axis) {
    const double along = dot(a, axis);
    const Vector rest{a[0] - along * axis[0], a[1] - along * axis[1], a[2] - along * axis[2]};
    const double size = length(rest);
    if (size < kTinyLength) return std::nullopt;
    return scaled(rest, 1 / size);
}

/// Unit rows of `matrix`, turned over when it mirrors; zero rows stay zero.
std::array<Vector, 3> unitRows(const Matrix4& matrix, bool mirrored) {
    std::array<Vector, 3> rows;
    for (int i = 0; i < 3; ++i) {
        const Vector axis = row(matrix, i);
        const double size = length(axis);
        rows[static_cast<std::size_t>(i)] = scaled(axis, size == 0 ? 0 : (mirrored ? -1 : 1) / size);
    }
    return rows;
}

/// The rotation of a matrix: the first axis that it has, then the next that is not parallel to it, brought to
/// a right angle. What a flat matrix lacks is taken from `hint`, so that it does not turn on its way.
Axes rotationOf(const std::array<Vector, 3>& rows, const Axes& hint) {
    std::size_t first = 0;
    while (first < 3 && dot(rows[first], rows[first]) == 0)
        ++first;
    if (first == 3) return hint;

    Axes axes;
    axes[first] = rows[first];
    for (const Axes* const source : {&rows, &hint})
        for (const std::size_t step : {1u, 2u}) {
            const std::size_t second = (first + step) % 3;
            const std::optional<Vector> side = perpendicularPart((*source)[second], axes[first]);
            if (!side) continue;
            axes[second] = *side;
            axes[3 - first - second] = step == 1 ? cross(axes[first], *side) : cross(*side, axes[first]);
            return axes;
        }
    return hint;  // only for rows that are not finite
}

/// The same rotation with w >= 0.
Quaternion nonNegative(const Quaternion& q) {
    return q.w < 0 ? Quaternion{scaled(q.v, -1), -q.w} : q;
}

/// Of the rotation that takes the unit vectors to `axes`; w >= 0.
Quaternion quaternionOf(const Axes& axes) {
    // The largest component first: dividing by a small one would lose precision.
    const double trace = axes[0][0] + axes[1][1] + axes[2][2];
    if (trace > 0) {
        const double w = std::sqrt(1 + trace) / 2;
        const double part = 1 / (4 * w);
        return {{(axes[1][2] - axes[2][1]) * part, (axes[2][0] - axes[0][2]) * part,
                 (axes[0][1] - axes[1][0]) * part},
                w};
    }
    std::size_t i = axes[1][1] > axes[0][0] ? 1 : 0;
    if (axes[2][2] > axes[i][i]) i = 2;
    const std::size_t j = (i + 1) % 3;
    const std::size_t k = (i + 2) % 3;
    Quaternion q{};
    q.v[i] = std::sqrt(1 + axes[i][i] - axes[j][j] - axes[k][k]) / 2;
    const double part = 1 / (4 * q.v[i]);
    q.v[j] = (axes[i][j] + axes[j][i]) * part;
    q.v[k] = (axes[i][k] + axes[k][i]) * part;
    q.w = (axes[j][k] - axes[k][j]) * part;
    return nonNegative(q);
}

Axes axesOf(const Quaternion& q) {
    const auto [x, y, z] = q.v;
    const double w = q.w;
    return {{{1 - 2 * (y * y + z * z), 2 * (x * y + z * w), 2 * (x * z - y * w)},
             {2 * (x * y - z * w), 1 - 2 * (x * x + z * z), 2 * (y * z + x * w)},
             {2 * (x * z + y * w), 2 * (y * z - x * w), 1 - 2 * (x * x + y * y)}}};
}

Quaternion product(const Quaternion& a, const Quaternion& b) {
    const Vector turned = cross(a.v, b.v);
    Quaternion result{{}, a.w * b.w - dot(a.v, b.v)};
    for (std::size_t i = 0; i < 3; ++i)
        result.v[i] = a.w * b.v[i] + b.w * a.v[i] + turned[i];
    return result;
}

/// The part `f` of the rotation `q`, w >= 0.
Quaternion partOf(const Quaternion& q, double f) {
    const double sine = length(q.v);
    if (sine == 0) return {{}, 1};
    const double halfAngle = std::atan2(sine, q.w) * f;
    return {scaled(q.v, std::sin(halfAngle) / sine), std::cos(halfAngle)};
}

Axes blendedRotation(const Axes& a, const Axes& b, double f) {
    const Quaternion from = quaternionOf(a);
    const Quaternion back{scaled(from.v, -1), from.w};
    const Quaternion between = nonNegative(product(back, quaternionOf(b)));
    return axesOf(nonNegative(product(from, partOf(between, f))));
}

double mixed(double a, double b, double f) {
    return a + (b - a) * f;
}

}  // namespace

float interpolated(const ZorvaKey<float>& left, const ZorvaKey<float>& right, TimeValue t) {
    return static_cast<float>(ticksBetween(left.time, t)) /
               static_cast<float>(ticksBetween(left.time, right.time)) * (right.value - left.value) +
           left.value;
}

Matrix4 blended(const Matrix4& a, const Matrix4& b, double f) {
    const double sizeOfA = determinant(a);
    const double sizeOfB = determinant(b);
    // A flat matrix has no mirror of its own and takes the other's.
    const bool mirroredA = (sizeOfA != 0 ? sizeOfA : sizeOfB) < 0;
    const bool mirroredB = (sizeOfB != 0 ? sizeOfB : sizeOfA) < 0;
    const auto rowsOfA = unitRows(a, mirroredA);
    const auto rowsOfB = unitRows(b, mirroredB);
    const Axes axesOfA = rotationOf(rowsOfA, rotationOf(rowsOfB, kUnitAxes));
    const Axes axes = blendedRotation(axesOfA, rotationOf(rowsOfB, axesOfA), f);

    Matrix4 result = kIdentityMatrix4;
    for (int i = 0; i < 3; ++i) {
        const double lengthInA = length(row(a, i)) * (mirroredA ? -1 : 1);
        const double lengthInB = length(row(b, i)) * (mirroredB ? -1 : 1);
        const Vector& axis = axes[static_cast<std::size_t>(i)];
        const double factor = mixed(lengthInA, lengthInB, f) / length(axis);
        for (int column = 0; column < 3; ++column) {
            result.m[i][column] = axis[static_cast<std::size_t>(column)] * factor;
            result.m[3][column] = mixed(a.m[3][column], b.m[3][column], f);
        }
    }
    return result;
}

Matrix4 blendedUnder(const Matrix4& parent, const Matrix4& a, const Matrix4& b, double f) {
    const std::optional<Matrix4> inverse = affineInverse(parent);
    if (!inverse) return blended(a, b, f);
    return blended(a * parent, b * parent, f) * *inverse;
}

}  // namespace qvo::zmx::adaptor::max
