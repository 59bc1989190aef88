#include "maxhost/src/files/SceneWriter.h"

#include <cstdint>
#include <stdexcept>

#include "maxhost/src/files/Checksum.h"
#include "maxhost/src/files/ObjectText.h"
#include "maxhost/src/files/Placeholder.h"

namespace maxhost {

using namespace format;

namespace {

Bytes fileHeader() {
    Bytes header(kMagic, kMagic + sizeof kMagic);
    const unsigned char* const version = reinterpret_cast<const unsigned char*>(&kVersion);
    header.insert(header.end(), version, version + sizeof kVersion);
    return header;
}

}  // namespace

SceneWriter::SceneWriter(Scene& scene) : scene_(scene), out_(fileHeader()) {}

Bytes SceneWriter::write(Scene& scene, const SettingsRecord& settings,
                         const std::vector<UtilityPart>& utilities) {
    SceneWriter writer(scene);
    writer.numberTargets();
    ChunkWriter& out = writer.out_;
    out.setTargetNumbers(&writer.numbers_);
    out.writeData(kSettings, &settings, sizeof settings);
    writer.sectionEnds_.push_back(out.size());
    writer.writeUtilities(utilities);

    writer.beginSection(kNodes);
    for (Node* node : writer.nodes_)
        writer.writeNode(*node);
    writer.endSection();

    writer.beginSection(kObjects);
    for (ReferenceTarget* object : writer.objects_)
        writer.writeObject(*object);
    writer.endSection();

    writer.writeChecksums();
    if (out.failed()) throw std::runtime_error("the scene could not be put into chunks");
    return out.take();
}

void SceneWriter::numberTargets() {
    nodes_ = scene_.nodesInOrder();
    for (Node* node : nodes_)
        numbers_.emplace(static_cast<ReferenceTarget*>(node), static_cast<int>(numbers_.size()));
    for (Node* node : nodes_)
        noteReferences(*node);
    // The list grows while it is walked: objects that refer to objects.
    for (size_t i = 0; i < objects_.size(); ++i)
        noteReferences(*objects_[i]);
}

void SceneWriter::noteReferences(ReferenceMaker& maker) {
    for (int i = 0; i < maker.NumRefs(); ++i) {
        ReferenceTarget* const target = maker.GetReference(i);
        if (target == nullptr || target->SuperClassID() == BASENODE_CLASS_ID) continue;
        const bool isNew = numbers_.emplace(target, static_cast<int>(numbers_.size())).second;
        if (isNew) objects_.push_back(target);
    }
}

void SceneWriter::beginSection(USHORT id) {
    out_.BeginChunk(id);
    out_.markContainer();
}

void SceneWriter::endSection() {
    out_.EndChunk();
    sectionEnds_.push_back(out_.size());
}

void SceneWriter::writeUtilities(const std::vector<UtilityPart>& utilities) {
    beginSection(kUtilities);
    for (const UtilityPart& part : utilities) {
        if (part.chunks.empty()) continue;
        const std::uint32_t classId[] = {part.classId.PartA(), part.classId.PartB()};
        out_.BeginChunk(kUtility);
        out_.writeData(kUtilityClass, classId, sizeof classId);
        out_.BeginChunk(kUtilityData);
        out_.writeChunks(part.chunks);
        out_.EndChunk();
        out_.EndChunk();
    }
    endSection();
}

void SceneWriter::writeNode(Node& node) {
    NodeRecord record{};
    record.handle = node.GetHandle();
    record.parent =
        node.parent()->isRoot()
            ? kNone
            : static_cast<std::uint32_t>(numbers_.at(static_cast<ReferenceTarget*>(node.parent())));
    record.flags = node.flags();
    record.wireColor = node.GetWireColor();
    out_.BeginChunk(kNode);
    out_.writeData(kNodeRecord, &record, sizeof record);
    out_.writeData(kNodeName, node.name().data(), node.name().size());
    const std::string& properties = node.userProperties();
    if (!properties.empty()) out_.writeData(kNodeProperties, properties.data(), properties.size());
    writeReferences(node);
    out_.EndChunk();
}

void SceneWriter::writeObject(ReferenceTarget& object) {
    const Placeholder* const placeholder = Placeholder::of(object);
    const Class_ID classId = placeholder == nullptr ? object.ClassID() : placeholder->keptClassId();
    const SClass_ID superClass =
        placeholder == nullptr ? object.SuperClassID() : placeholder->keptSuperClass();
    if (!isSavedSuperClass(superClass))
        throw std::runtime_error(objectText(superClass, classId) + ": files hold no objects of this kind");
    const ClassRecord record{superClass, classId.PartA(), classId.PartB()};
    out_.BeginChunk(kObject);
    out_.writeData(kObjectClass, &record, sizeof record);
    writeReferences(object);
    out_.BeginChunk(kObjectData);
    out_.markContainer();
    if (placeholder == nullptr)
        writeObjectData(object);
    else
        out_.writeChunks(placeholder->keptChunks());
    out_.EndChunk();
    out_.EndChunk();
}

void SceneWriter::writeObjectData(ReferenceTarget& object) {
    const int depth = out_.depth();
    const bool saved = object.Save(&out_) == IO_OK;
    if (saved && !out_.failed() && out_.depth() == depth) return;
    throw std::runtime_error(objectText(object.SuperClassID(), object.ClassID()) + " could not save itself");
}

void SceneWriter::writeReferences(ReferenceMaker& maker) {
    std::vector<std::uint32_t> numbers;
    for (int i = 0; i < maker.NumRefs(); ++i) {
        const auto found = numbers_.find(maker.GetReference(i));
        numbers.push_back(found == numbers_.end() ? kNone : static_cast<std::uint32_t>(found->second));
    }
    if (!numbers.empty()) out_.writeData(kReferences, numbers.data(), numbers.size() * sizeof numbers[0]);
}

void SceneWriter::writeChecksums() {
    std::vector<std::uint32_t> checksums;
    size_t begin = kFileHeaderSize;
    for (const size_t end : sectionEnds_) {
        checksums.push_back(crc32({out_.bytes().data() + begin, end - begin}));
        begin = end;
    }
    out_.writeData(kChecksums, checksums.data(), checksums.size() * sizeof checksums[0]);
}

}  // namespace maxhost
