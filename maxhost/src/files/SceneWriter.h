#pragma once

#include <max.h>

#include <string>
#include <vector>

#include "maxhost/src/files/ChunkWriter.h"
#include "maxhost/src/files/SceneFormat.h"
#include "maxhost/src/scene/Scene.h"

namespace maxhost {

/// Writes a scene as the bytes of a file: the nodes, and whatever they refer to, directly or not. The same
/// scene gives the same bytes, in this process or another. Linear in what is written.
class CoreExport SceneWriter {
  public:
    /// Errors    throws std::runtime_error naming the object that could not be written.
    static Bytes write(Scene& scene, const format::SettingsRecord& settings,
                       const std::vector<UtilityPart>& utilities);

  private:
    explicit SceneWriter(Scene& scene);

    void numberTargets();
    void noteReferences(ReferenceMaker& maker);
    void beginSection(USHORT id);
    void endSection();
    void writeUtilities(const std::vector<UtilityPart>& utilities);
    void writeNode(Node& node);
    void writeObject(ReferenceTarget& object);
    void writeObjectData(ReferenceTarget& object);
    void writeReferences(ReferenceMaker& maker);
    void writeChecksums();

    Scene& scene_;
    ChunkWriter out_;
    TargetNumbers numbers_;
    std::vector<Node*> nodes_;
    std::vector<ReferenceTarget*> objects_;
    std::vector<size_t> sectionEnds_;
};

}  // namespace maxhost
