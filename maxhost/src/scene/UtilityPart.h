#pragma once

#include <max.h>

#include <vector>

namespace maxhost {

/// What one global utility has stored in a scene file.
struct UtilityPart {
    Class_ID classId;
    std::vector<unsigned char> chunks;
};

}  // namespace maxhost
