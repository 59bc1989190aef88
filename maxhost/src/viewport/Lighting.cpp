#include "maxhost/src/viewport/Lighting.h"

#include <algorithm>

namespace maxhost {

LinearColor lit(const LinearColor& color, const Point3& normal, const Point3& toEye) {
    constexpr float kAmbient = 0.28f, kSun = 0.72f;
    const Point3 eye = Normalize(toEye);
    const Point3 sun = Normalize(eye + Point3(0.0f, 0.0f, 0.8f));
    Point3 n = Normalize(normal);
    if (n % eye < 0) n = -n;
    if (n % n == 0) n = sun;
    return color * (kAmbient + kSun * std::max(0.0f, n % sun));
}

}  // namespace maxhost
