#include "maxhost/src/files/SceneReader.h"

#include <hold.h>

#include <algorithm>
#include <cstring>
#include <stdexcept>

#include "maxhost/src/files/Checksum.h"
#include "maxhost/src/files/ObjectText.h"
#include "maxhost/src/files/Placeholder.h"
#include "maxhost/src/scene/Units.h"

namespace maxhost {

using namespace format;

namespace {

/// The bytes as one record; false unless they are exactly that long.
template <class Record>
bool readRecord(ByteSpan bytes, Record& record) {
    if (bytes.size != sizeof record) return false;
    std::memcpy(&record, bytes.data, sizeof record);
    return true;
}

std::string textOf(ByteSpan bytes) {
    // The host's texts end at the first zero.
    const std::string text(reinterpret_cast<const char*>(bytes.data), bytes.size);
    return text.substr(0, text.find('\0'));
}

}  // namespace

void SceneReader::fail(const std::string& what) {
    throw std::runtime_error(what);
}

SceneDocument SceneReader::read(ByteSpan file, const ClassDirectory& classes, Checksums checksums) {
    const HoldSuspend unrecorded;
    SceneReader reader(classes);
    reader.findSections(file, checksums);
    reader.readSettings();
    reader.readUtilities();
    reader.document_.scene = std::make_unique<Scene>();
    reader.readNodes();
    reader.readObjects();
    reader.loadObjects();
    return std::move(reader.document_);
}

SceneReader::~SceneReader() {
    // After a failure the scene is still here, and lets go of its objects first.
    document_.scene.reset();
    for (const ObjectEntry& entry : objects_)
        entry.object->MaybeAutoDelete();
}

ByteSpan SceneReader::sectionContent(ByteSpan& rest, USHORT id, const char* name) {
    Chunk chunk;
    const bool holdsChunks = id != kSettings && id != kChecksums;
    if (!takeChunk(rest, chunk) || chunk.id != id || chunk.container != holdsChunks)
        fail(std::string("the ") + name + " section is not where it belongs");
    return chunk.content;
}

void SceneReader::findSections(ByteSpan file, Checksums checksums) {
    if (file.size < kFileHeaderSize || std::memcmp(file.data, kMagic, sizeof kMagic) != 0)
        fail("no scene file");
    std::uint32_t version;
    std::memcpy(&version, file.data + sizeof kMagic, sizeof version);
    if (version != kVersion)
        fail("scene file of version " + std::to_string(version) + ", this host reads version 1");

    ByteSpan rest{file.data + kFileHeaderSize, file.size - kFileHeaderSize};
    ChunkDamage damage;
    if (!chunksAreWhole(rest, damage))
        fail("damaged at byte " + std::to_string(damage.offset + kFileHeaderSize) +
             ": a chunk does not end inside its container " + std::to_string(damage.id));

    const struct {
        USHORT id;
        const char* name;
        ByteSpan* content;
    } sections[] = {{kSettings, "settings", &settings_},
                    {kUtilities, "utilities", &utilities_},
                    {kNodes, "nodes", &nodeSection_},
                    {kObjects, "objects", &objectSection_}};
    std::vector<std::uint32_t> found;
    for (const auto& section : sections) {
        const unsigned char* const begin = rest.data;
        *section.content = sectionContent(rest, section.id, section.name);
        if (checksums == Checksums::verified)
            found.push_back(crc32({begin, static_cast<size_t>(rest.data - begin)}));
    }
    const ByteSpan stored = sectionContent(rest, kChecksums, "checksum");
    if (rest.size > 0) fail("there is something behind the last section");
    for (size_t i = 0; i < found.size(); ++i) {
        if (stored.size == sizeof found[0] * found.size() &&
            std::memcmp(stored.data + i * sizeof found[0], &found[i], sizeof found[0]) == 0)
            continue;
        const size_t begin = static_cast<size_t>(sections[i].content->data - file.data);
        fail(std::string("damaged: the ") + sections[i].name + " section, bytes " + std::to_string(begin) +
             " to " + std::to_string(begin + sections[i].content->size) + ", does not match its checksum");
    }
}

void SceneReader::readSettings() {
    SettingsRecord& settings = document_.settings;
    const bool sound = readRecord(settings_, settings) && settings.frameRate >= 1 &&
                       settings.ticksPerFrame >= 1 && Units::isValid(settings.unitType, settings.unitScale);
    if (!sound) fail("the settings make no sense");
}

void SceneReader::readUtilities() {
    Chunk chunk;
    for (ByteSpan rest = utilities_; takeChunk(rest, chunk);) {
        UtilityPart part;
        std::uint32_t classId[2];
        Chunk id, data;
        const bool sound = chunk.id == kUtility && chunk.container && takeChunk(chunk.content, id) &&
                           id.id == kUtilityClass && readRecord(id.content, classId) &&
                           takeChunk(chunk.content, data) && data.id == kUtilityData && data.container;
        if (!sound)
            fail("part " + std::to_string(document_.utilities.size()) + " of the utilities makes no sense");
        part.classId = Class_ID(classId[0], classId[1]);
        part.chunks.assign(data.content.data, data.content.data + data.content.size);
        document_.utilities.push_back(std::move(part));
    }
}

void SceneReader::readNodes() {
    Chunk chunk;
    for (ByteSpan rest = nodeSection_; takeChunk(rest, chunk);) {
        if (chunk.id != kNode || !chunk.container)
            fail("chunk " + std::to_string(chunk.id) + " stands among the nodes");
        readNode(chunk.content);
    }
}

void SceneReader::readNode(ByteSpan content) {
    const std::string where = "node " + std::to_string(nodes_.size()) + ": ";
    Chunk chunk, name;
    NodeRecord record;
    if (!takeChunk(content, chunk) || chunk.id != kNodeRecord || !readRecord(chunk.content, record) ||
        !takeChunk(content, name) || name.id != kNodeName)
        fail(where + "its record makes no sense");
    if (record.parent != kNone && record.parent >= nodes_.size())
        fail(where + "its parent, node " + std::to_string(record.parent) + ", is not before it");
    Node& parent = record.parent == kNone ? document_.scene->root() : *nodes_[record.parent].node;
    Node* const node = document_.scene->restoreNode(record.handle, textOf(name.content), parent);
    if (node == nullptr) fail(where + "handle " + std::to_string(record.handle) + " is taken or none");
    node->applyFlags(record.flags & Node::kAllFlags);
    node->applyWireColor(record.wireColor);
    NodeEntry entry{node, {}};
    while (takeChunk(content, chunk)) {
        if (chunk.id == kNodeProperties) node->applyUserProperties(textOf(chunk.content));
        if (chunk.id == kReferences) entry.references = chunk.content;
    }
    nodes_.push_back(entry);
}

void SceneReader::readObjects() {
    Chunk chunk;
    for (ByteSpan rest = objectSection_; takeChunk(rest, chunk);) {
        if (chunk.id != kObject || !chunk.container)
            fail("chunk " + std::to_string(chunk.id) + " stands among the objects");
        readObject(chunk.content);
    }
}

void SceneReader::readObject(ByteSpan content) {
    const std::string where = "object " + std::to_string(objects_.size()) + ": ";
    ObjectEntry entry{};
    Chunk chunk;
    if (!takeChunk(content, chunk) || chunk.id != kObjectClass || !readRecord(chunk.content, entry.kind))
        fail(where + "its record makes no sense");
    const Class_ID classId(entry.kind.classA, entry.kind.classB);
    if (!isSavedSuperClass(entry.kind.superClass))
        fail(where + "files hold no " + objectText(entry.kind.superClass, classId));
    while (takeChunk(content, chunk)) {
        if (chunk.id == kReferences) entry.references = chunk.content;
        if (chunk.id == kObjectData && chunk.container) entry.data = chunk.content;
    }
    entry.object =
        static_cast<ReferenceTarget*>(classes_.createInstance(entry.kind.superClass, classId, TRUE));
    entry.isPlaceholder = entry.object == nullptr;
    if (entry.isPlaceholder) {
        entry.object = makePlaceholder(entry.kind.superClass, classId, entry.data,
                                       entry.references.size / sizeof(std::uint32_t));
        noteMissing(entry.kind);
    }
    objects_.push_back(entry);
    holds_.emplace_back(entry.object);
}

void SceneReader::noteMissing(const ClassRecord& kind) {
    const std::string text = objectText(kind.superClass, Class_ID(kind.classA, kind.classB));
    auto& missing = document_.missingClasses;
    if (std::find(missing.begin(), missing.end(), text) == missing.end()) missing.push_back(text);
}

ReferenceTarget* SceneReader::target(std::uint32_t number) const {
    if (number < nodes_.size()) return nodes_[number].node;
    const size_t object = number - nodes_.size();
    return object < objects_.size() ? objects_[object].object : nullptr;
}

void SceneReader::loadObjects() {
    for (size_t i = 0; i < objects_.size(); ++i) {
        const ObjectEntry& entry = objects_[i];
        if (entry.isPlaceholder) continue;
        ChunkReader data(entry.data, &callbacks_);
        if (entry.object->Load(&data) != IO_OK)
            fail("object " + std::to_string(i) + ": " +
                 objectText(entry.kind.superClass, Class_ID(entry.kind.classA, entry.kind.classB)) +
                 " could not read its data");
    }
    // Last ones first: what an object refers to mostly stands behind it, so that nothing refers yet to the
    // object whose references are tested for loops.
    for (size_t i = objects_.size(); i-- > 0;)
        putReferences(*objects_[i].object, objects_[i].references, "object " + std::to_string(i));
    for (size_t i = 0; i < nodes_.size(); ++i)
        putReferences(*nodes_[i].node, nodes_[i].references, "node " + std::to_string(i));

    ChunkReader nothingLeft(ByteSpan(), nullptr);
    for (PostLoadCallback* callback : callbacks_)
        callback->proc(&nothingLeft);
}

void SceneReader::putReferences(ReferenceMaker& maker, ByteSpan numbers, const std::string& owner) {
    if (numbers.size % sizeof(std::uint32_t) != 0) fail(owner + ": its references make no sense");
    const size_t count = numbers.size / sizeof(std::uint32_t);
    for (size_t i = 0; i < count; ++i) {
        std::uint32_t number;
        std::memcpy(&number, numbers.data + i * sizeof number, sizeof number);
        if (number == kNone) continue;
        const std::string what = owner + ": reference " + std::to_string(i) + " to " + std::to_string(number);
        ReferenceTarget* const wanted = target(number);
        if (wanted == nullptr) fail(what + ", which does not exist");
        if (i >= static_cast<size_t>(maker.NumRefs())) fail(what + " is one too many");
        const int which = static_cast<int>(i);
        // Tried without registering: an object that cannot use the target stores null instead.
        RefTargetHandle const former = maker.GetReference(which);
        maker.SetReference(which, wanted);
        const bool fits = maker.GetReference(which) == wanted;
        maker.SetReference(which, former);
        if (!fits) fail(what + ", which is of another kind");
        if (maker.ReplaceReference(which, wanted) != REF_SUCCEED) fail(what + " would close a loop");
    }
}

}  // namespace maxhost
