#pragma once

#include "point3.h"

/// Colour of three floats, 0 to 1.
class Color {
  public:
    float r = 0, g = 0, b = 0;

    Color() = default;
    Color(float red, float green, float blue) : r(red), g(green), b(blue) {}
    /// From 0x00BBGGRR.
    explicit Color(DWORD rgb)
        : r(static_cast<float>(rgb & 0xff) / 255.0f),
          g(static_cast<float>((rgb >> 8) & 0xff) / 255.0f),
          b(static_cast<float>((rgb >> 16) & 0xff) / 255.0f) {}
    explicit Color(const Point3& p) : r(p.x), g(p.y), b(p.z) {}

    operator Point3() const { return Point3(r, g, b); }
    int operator==(const Color& other) const { return r == other.r && g == other.g && b == other.b; }
};

/// Colour with coverage, 1 = opaque.
class AColor : public Color {
  public:
    float a = 1;

    AColor() = default;
    AColor(float red, float green, float blue, float alpha = 1) : Color(red, green, blue), a(alpha) {}
};
