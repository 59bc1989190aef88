#include "maxhost/src/viewport/PngEncoder.h"

#include <stdexcept>

#define STB_IMAGE_WRITE_IMPLEMENTATION
#define STB_IMAGE_WRITE_STATIC
#define STBI_WRITE_NO_STDIO
#include <stb_image_write.h>

namespace maxhost {

namespace {

void append(void* target, void* data, int size) {
    static_cast<std::string*>(target)->append(static_cast<const char*>(data), static_cast<std::size_t>(size));
}

}  // namespace

std::string encodePng(const Picture& picture) {
    std::string bytes;
    const bool sized = picture.width() > 0 && picture.height() > 0;
    if (!sized || stbi_write_png_to_func(append, &bytes, picture.width(), picture.height(), 3,
                                         picture.pixel(0, 0), picture.width() * 3) == 0)
        throw std::runtime_error("the picture cannot be encoded");
    return bytes;
}

}  // namespace maxhost
