#pragma once

#include <string>

#include "maxhost/src/viewport/Rasterizer.h"

namespace maxhost {

/// Lettering made of straight strokes: digits, capitals (small letters show as capitals) and common signs;
/// anything else shows as a box.
class StrokeFont {
  public:
    /// Width in pixels of `text` in capitals `height` pixels high.
    static double width(const std::string& text, double height);
    /// Writes with the lower left corner of the text at (x, y) in pixels, in front of everything.
    static void write(Rasterizer& target, const std::string& text, double x, double y, double height,
                      const LinearColor& color);
};

}  // namespace maxhost
