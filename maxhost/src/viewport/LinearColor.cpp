#include "maxhost/src/viewport/LinearColor.h"

#include <algorithm>
#include <cmath>

namespace maxhost {

namespace {

/// Clamped to 0 to 1; 0 for what is no number, as shapes beyond the range of numbers give.
float clamped(float value) {
    return std::max(0.0f, std::min(value, 1.0f));  // in this order: a comparison with no number is false
}

float intensity(float display) {
    const float value = clamped(display);
    return value <= 0.04045f ? value / 12.92f : std::pow((value + 0.055f) / 1.055f, 2.4f);
}

std::uint8_t displayByte(float intensity) {
    const float value = clamped(intensity);
    const float display =
        value <= 0.0031308f ? value * 12.92f : 1.055f * std::pow(value, 1.0f / 2.4f) - 0.055f;
    return static_cast<std::uint8_t>(display * 255.0f + 0.5f);
}

}  // namespace

LinearColor::LinearColor(const Color& display)
    : r(intensity(display.r)), g(intensity(display.g)), b(intensity(display.b)) {}

void LinearColor::toDisplay(std::uint8_t* bytes) const {
    bytes[0] = displayByte(r);
    bytes[1] = displayByte(g);
    bytes[2] = displayByte(b);
}

}  // namespace maxhost
