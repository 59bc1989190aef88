#pragma once

#include <acolor.h>

#include <cstdint>

namespace maxhost {

/// Colour in light intensities, so that blending and averaging come out as they do in light. Everything
/// outside the viewport's inside counts in display values (Color).
struct LinearColor {
    float r = 0, g = 0, b = 0;

    LinearColor() = default;
    LinearColor(float red, float green, float blue) : r(red), g(green), b(blue) {}
    /// Components are clamped to 0 to 1.
    explicit LinearColor(const Color& display);

    LinearColor operator+(const LinearColor& o) const { return {r + o.r, g + o.g, b + o.b}; }
    LinearColor operator*(float f) const { return {r * f, g * f, b * f}; }
    LinearColor operator*(const LinearColor& o) const { return {r * o.r, g * o.g, b * o.b}; }

    /// Red, green, blue as display bytes.
    void toDisplay(std::uint8_t* bytes) const;
    float luminance() const { return 0.2126f * r + 0.7152f * g + 0.0722f * b; }
};

}  // namespace maxhost
