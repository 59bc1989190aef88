#pragma once

#include <cstddef>
#include <vector>

#include "maxhost/Picture.h"
#include "maxhost/src/viewport/LinearColor.h"

namespace maxhost {

/// Colour and nearness of a grid of samples, `perPixel` times `perPixel` to a pixel.
/// Nearness is 1 / distance from the eye; 0 is infinitely far.
class CoreExport SampleBuffer {
  public:
    SampleBuffer(int pixelWidth, int pixelHeight, int perPixel, const LinearColor& background);

    int perPixel() const { return perPixel_; }
    int width() const { return width_; }
    int height() const { return height_; }

    /// Blends `color` over the sample unless something nearer is there. Only a full coverage (1) hides what
    /// is drawn behind it later. The sample must be inside.
    void put(int x, int y, float nearness, const LinearColor& color, float coverage) {
        const std::size_t at =
            static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
        if (nearness < nearness_[at]) return;
        color_[at] = color * coverage + color_[at] * (1.0f - coverage);
        if (coverage >= 1.0f) nearness_[at] = nearness;
    }

    /// What is drawn so far hides nothing of what follows.
    void makeBackdrop();

    /// Averages the samples of each pixel.
    Picture resolve() const;

  private:
    LinearColor pixelColor(int x, int y) const;

    int perPixel_, width_, height_;
    std::vector<LinearColor> color_;
    std::vector<float> nearness_;
};

}  // namespace maxhost
