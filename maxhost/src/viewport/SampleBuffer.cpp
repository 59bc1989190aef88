#include "maxhost/src/viewport/SampleBuffer.h"

#include <algorithm>

namespace maxhost {

SampleBuffer::SampleBuffer(int pixelWidth, int pixelHeight, int perPixel, const LinearColor& background)
    : perPixel_(perPixel),
      width_(pixelWidth * perPixel),
      height_(pixelHeight * perPixel),
      color_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_), background),
      nearness_(color_.size(), 0.0f) {}

void SampleBuffer::makeBackdrop() {
    std::fill(nearness_.begin(), nearness_.end(), 0.0f);
}

Picture SampleBuffer::resolve() const {
    Picture picture(width_ / perPixel_, height_ / perPixel_);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            pixelColor(x, y).toDisplay(picture.pixel(x, y));
    return picture;
}

LinearColor SampleBuffer::pixelColor(int x, int y) const {
    LinearColor sum;
    for (int row = y * perPixel_; row < (y + 1) * perPixel_; ++row) {
        const std::size_t start = static_cast<std::size_t>(row) * static_cast<std::size_t>(width_) +
                                  static_cast<std::size_t>(x) * static_cast<std::size_t>(perPixel_);
        for (int i = 0; i < perPixel_; ++i)
            sum = sum + color_[start + static_cast<std::size_t>(i)];
    }
    return sum * (1.0f / static_cast<float>(perPixel_ * perPixel_));
}

}  // namespace maxhost
