#pragma once

#include <vector>

#include <animtbl.h>

namespace maxhost {

/// What the host's scene writer and cloning need of an Animatable beyond the public calls.
class CoreExport AnimatableAccess {
  public:
    /// In the order in which they were added.
    static const std::vector<AppDataChunk*>& appData(const Animatable& object) { return object.appData_; }
    /// Adds copies of all chunks of `from`.
    static void copyAppData(const Animatable& from, Animatable& to);
};

}  // namespace maxhost
