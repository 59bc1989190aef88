#pragma once

#include <vector>

#include <coreexp.h>
#include <plugapi.h>

namespace maxhost {

/// Descriptors of the host's own controllers, for the class directory. They live as long as the process.
CoreExport std::vector<ClassDesc*> builtinControllerClasses();

}  // namespace maxhost
