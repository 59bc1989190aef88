#pragma once

#include "maxhost/src/viewport/LinearColor.h"

namespace maxhost {

/// `color` as a matt surface shows it under a light from above and behind the viewer. `normal` and `toEye`
/// need no unit length; a surface seen from behind is lit like its front. A zero normal is lit evenly.
LinearColor lit(const LinearColor& color, const Point3& normal, const Point3& toEye);

}  // namespace maxhost
