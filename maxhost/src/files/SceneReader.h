#pragma once

#include <max.h>

#include <deque>
#include <string>
#include <vector>

#include "maxhost/src/files/Bytes.h"
#include "maxhost/src/files/ChunkReader.h"
#include "maxhost/src/files/SceneDocument.h"
#include "maxhost/src/plugins/ClassDirectory.h"
#include "maxhost/src/references/RecordHold.h"

namespace maxhost {

/// Reads the bytes of a scene file into a scene of its own, so that a file that cannot be read changes
/// nothing. No count, length, index or kind that the bytes state is believed unchecked. Objects of classes
/// that are not there become placeholders. Linear in the bytes.
class CoreExport SceneReader {
  public:
    enum class Checksums { verified, ignored };

    /// checksums   `ignored` is for programs that damage files on purpose to reach what lies behind the
    /// checksums Errors      throws std::runtime_error with what is wrong and where; nothing is left behind.
    static SceneDocument read(ByteSpan file, const ClassDirectory& classes,
                              Checksums checksums = Checksums::verified);

  private:
    struct NodeEntry {
        Node* node;
        ByteSpan references;
    };
    struct ObjectEntry {
        ReferenceTarget* object;
        format::ClassRecord kind;
        ByteSpan references;
        ByteSpan data;
        bool isPlaceholder;
    };

    explicit SceneReader(const ClassDirectory& classes) : classes_(classes) {}
    ~SceneReader();

    ByteSpan sectionContent(ByteSpan& rest, USHORT id, const char* name);
    void findSections(ByteSpan file, Checksums checksums);
    void readSettings();
    void readUtilities();
    void readNodes();
    void readNode(ByteSpan content);
    void readObjects();
    void readObject(ByteSpan content);
    void loadObjects();
    void putReferences(ReferenceMaker& maker, ByteSpan numbers, const std::string& owner);
    ReferenceTarget* target(std::uint32_t number) const;
    void noteMissing(const format::ClassRecord& kind);
    [[noreturn]] static void fail(const std::string& what);

    const ClassDirectory& classes_;
    ByteSpan settings_, utilities_, nodeSection_, objectSection_;
    SceneDocument document_;
    std::vector<NodeEntry> nodes_;
    std::vector<ObjectEntry> objects_;
    /// Objects live at least as long as the reader, whoever lets go of them.
    std::deque<RecordHold> holds_;
    std::vector<PostLoadCallback*> callbacks_;
};

}  // namespace maxhost
