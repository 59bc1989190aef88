#pragma once

#include <coreexp.h>
#include <plugapi.h>

#include <vector>

namespace maxhost {

/// Descriptors of the host's own objects, for the class directory. They live as long as the process.
CoreExport std::vector<ClassDesc*> builtinObjectClasses();

}  // namespace maxhost
