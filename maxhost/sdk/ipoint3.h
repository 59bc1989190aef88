#pragma once

/// Integer point with depth.
class IPoint3 {
  public:
    int x = 0, y = 0, z = 0;

    IPoint3() = default;
    IPoint3(int px, int py, int pz) : x(px), y(py), z(pz) {}

    IPoint3 operator+(const IPoint3& b) const { return IPoint3(x + b.x, y + b.y, z + b.z); }
    IPoint3 operator-(const IPoint3& b) const { return IPoint3(x - b.x, y - b.y, z - b.z); }
    int operator==(const IPoint3& b) const { return x == b.x && y == b.y && z == b.z; }
    int operator!=(const IPoint3& b) const { return !(*this == b); }
};
