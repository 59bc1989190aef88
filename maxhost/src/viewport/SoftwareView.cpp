#include "maxhost/src/viewport/SoftwareView.h"

namespace maxhost {

float SoftwareView::NonScalingObjectSize() {
    constexpr double kPixels = 12;
    return static_cast<float>(kPixels / camera_.pixelsPerUnit(camera_.reach()));
}

}  // namespace maxhost
