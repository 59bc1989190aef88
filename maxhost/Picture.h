#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <coreexp.h>

namespace maxhost {

/// An RGB picture, 8 bits a channel, rows from the top.
class CoreExport Picture {
  public:
    Picture() = default;
    /// Black. Sizes below 0 count as 0.
    Picture(int width, int height);

    int width() const { return width_; }
    int height() const { return height_; }
    /// Three bytes: red, green, blue. The pixel must be inside.
    std::uint8_t* pixel(int x, int y) { return &bytes_[offset(x, y)]; }
    const std::uint8_t* pixel(int x, int y) const { return &bytes_[offset(x, y)]; }

    /// Replaces the part of this picture that `other`, with its upper left pixel at (x, y), covers.
    void paste(const Picture& other, int x, int y);

    /// Writes a PNG file, the same bytes for the same picture.
    /// Errors   throws std::runtime_error that names the file when it cannot be written.
    void writePng(const std::string& path) const;

  private:
    std::size_t offset(int x, int y) const {
        return (static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                static_cast<std::size_t>(x)) *
               3;
    }

    int width_ = 0, height_ = 0;
    std::vector<std::uint8_t> bytes_;
};

}  // namespace maxhost
