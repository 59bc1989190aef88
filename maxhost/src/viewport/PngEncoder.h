#pragma once

#include <string>

#include "maxhost/Picture.h"

namespace maxhost {

/// The bytes of a PNG file. Throws std::runtime_error for a picture without pixels.
std::string encodePng(const Picture& picture);

}  // namespace maxhost
