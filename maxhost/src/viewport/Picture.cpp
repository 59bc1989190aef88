#include "maxhost/Picture.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

#include "maxhost/src/viewport/PngEncoder.h"

namespace maxhost {

Picture::Picture(int width, int height)
    : width_(std::max(width, 0)),
      height_(std::max(height, 0)),
      bytes_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_) * 3) {}

void Picture::paste(const Picture& other, int x, int y) {
    const int left = std::max(x, 0), right = std::min(x + other.width_, width_);
    const int top = std::max(y, 0), bottom = std::min(y + other.height_, height_);
    if (left >= right) return;
    for (int row = top; row < bottom; ++row)
        std::copy_n(other.pixel(left - x, row - y), (right - left) * 3, pixel(left, row));
}

void Picture::writePng(const std::string& path) const {
    const std::string encoded = encodePng(*this);
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(encoded.data(), static_cast<std::streamsize>(encoded.size()));
    file.close();
    if (!file) throw std::runtime_error(path + ": the picture cannot be written");
}

}  // namespace maxhost
