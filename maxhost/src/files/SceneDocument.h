#pragma once

#include <max.h>

#include <memory>
#include <vector>

#include "maxhost/src/files/SceneFormat.h"
#include "maxhost/src/scene/Scene.h"

namespace maxhost {

/// What a scene file holds, read.
struct SceneDocument {
    std::unique_ptr<Scene> scene;
    format::SettingsRecord settings{};
    /// What the global utilities have stored, in the order of the file.
    std::vector<UtilityPart> utilities;
    /// Kinds of objects whose class is not there, for a message; empty when all are.
    std::vector<std::string> missingClasses;
};

}  // namespace maxhost
