#pragma once

/// Degrees and radians, as doubles.
constexpr double PI = 3.14159265358979323846;
constexpr double DEG_TO_RAD = PI / 180.0;
constexpr double RAD_TO_DEG = 180.0 / PI;

constexpr double DegToRad(double degrees) {
    return degrees * DEG_TO_RAD;
}
constexpr double RadToDeg(double radians) {
    return radians * RAD_TO_DEG;
}
