#pragma once

/// Integer point, such as a pixel.
class IPoint2 {
  public:
    int x = 0, y = 0;

    IPoint2() = default;
    IPoint2(int px, int py) : x(px), y(py) {}

    IPoint2 operator+(const IPoint2& b) const { return IPoint2(x + b.x, y + b.y); }
    IPoint2 operator-(const IPoint2& b) const { return IPoint2(x - b.x, y - b.y); }
    int operator==(const IPoint2& b) const { return x == b.x && y == b.y; }
    int operator!=(const IPoint2& b) const { return !(*this == b); }
};
