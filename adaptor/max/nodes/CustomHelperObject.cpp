#include "adaptor/max/nodes/CustomHelperObject.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>

#include "adaptor/max/Boundary.h"
#include "adaptor/max/ChunkIo.h"
#include "adaptor/max/ClassIds.h"
#include "util/Log.h"

namespace qvo::zmx::adaptor::max {

using util::Log;

namespace {

char className[] = "Zorva_Helper";  // not const for the host

// Chunks of the object, parts of users' files.
constexpr USHORT kVertexChunk = 1;
constexpr USHORT kFaceChunk = 2;
constexpr USHORT kLookChunk = 3;

constexpr std::size_t kVertexBytes = 24;
constexpr std::size_t kFaceBytes = 12;
constexpr std::size_t kColorBytes = 12;
static_assert(sizeof(util::Point3d) == kVertexBytes, "vertices are stored as they lie in memory");
static_assert(sizeof(int[3]) == kFaceBytes, "triangles are stored as they lie in memory");

/// One chunk of two pieces of bytes.
IOResult writePieces(ISave& save, USHORT id, const void* head, std::size_t headSize, const void* body,
                     std::size_t bodySize) {
    return writeChunk(save, id, [&] {
        const IOResult written = writeBytes(save, head, headSize);
        return written == IO_OK ? writeBytes(save, body, bodySize) : written;
    });
}

IOResult writeList(ISave& save, USHORT id, std::size_t count, const void* items, std::size_t itemBytes) {
    const std::uint32_t storedCount = static_cast<std::uint32_t>(count);
    return writePieces(save, id, &storedCount, sizeof storedCount, items, count * itemBytes);
}

/// Reads a list's count, which is never trusted: what the chunk cannot hold is cut.
IOResult readCount(ILoad& load, std::size_t itemBytes, const char* what, std::size_t& count) {
    count = 0;
    std::uint32_t stored = 0;
    const std::size_t length = load.CurChunkLength();
    if (length < sizeof stored) {
        util::logLine(Log::kWarning, "A helper object lacks its ", what);
        return IO_OK;
    }
    const IOResult result = readBytes(load, &stored, sizeof stored);
    if (result != IO_OK) return result;
    count = std::min<std::size_t>(stored, (length - sizeof stored) / itemBytes);
    if (count != stored)
        util::logLine(Log::kWarning, "A helper object holds ", count, " of ", stored, " ", what);
    return IO_OK;
}

}  // namespace

void CustomHelperObject::setShape(const util::CMesh& shape) {
    shape_ = shape;
    NotifyDependents(FOREVER, PART_GEOM | PART_TOPO, REFMSG_CHANGE);
}

void CustomHelperObject::setColor(float red, float green, float blue) {
    color_ = {red, green, blue};
    NotifyDependents(FOREVER, PART_DISPLAY, REFMSG_CHANGE);
}

void CustomHelperObject::setFlag(Flag flag, bool on) {
    flags_[flag] = on;
    NotifyDependents(FOREVER, PART_DISPLAY, REFMSG_CHANGE);
}

void CustomHelperObject::GetClassName(TSTR& name) {
    name = className;
}

TCHAR* CustomHelperObject::GetObjectName() {
    return className;
}

void CustomHelperObject::InitNodeName(TSTR& name) {
    name = className;
}

Class_ID CustomHelperObject::ClassID() {
    return kHelperClassId;
}

ObjectState CustomHelperObject::Eval(TimeValue /*t*/) {
    return ObjectState(this);
}

RefResult CustomHelperObject::NotifyRefChanged(Interval /*changeInt*/, RefTargetHandle /*target*/,
                                               PartID& /*part*/, RefMessage /*message*/) {
    return REF_SUCCEED;
}

RefTargetHandle CustomHelperObject::Clone(RemapDir& remap) {
    return guarded<RefTargetHandle>("Clone", nullptr, [&]() -> RefTargetHandle {
        const auto discard = [](CustomHelperObject* copy) { copy->DeleteThis(); };
        std::unique_ptr<CustomHelperObject, decltype(discard)> copy(new CustomHelperObject, discard);
        copy->shape_ = shape_;
        copy->color_ = color_;
        copy->flags_ = flags_;
        BaseClone(this, copy.get(), remap);
        return copy.release();  // the host's
    });
}

IOResult CustomHelperObject::Save(ISave* isave) {
    std::array<unsigned char, kFlagCount> switches{};
    for (std::size_t i = 0; i < switches.size(); ++i)
        switches[i] = flags_[i] ? 1 : 0;

    const std::size_t faces = shape_.faces.size() / 3;
    IOResult result =
        writeList(*isave, kVertexChunk, shape_.vertices.size(), shape_.vertices.data(), kVertexBytes);
    if (result == IO_OK) result = writeList(*isave, kFaceChunk, faces, shape_.faces.data(), kFaceBytes);
    if (result == IO_OK)
        result =
            writePieces(*isave, kLookChunk, color_.data(), kColorBytes, switches.data(), switches.size());
    if (result != IO_OK) util::logLine(Log::kError, "Unable to write a helper object into the scene");
    return result;
}

IOResult CustomHelperObject::Load(ILoad* iload) {
    const IOResult result = guarded("Load", IO_ERROR, [&] {
        IOResult opened = iload->OpenChunk();
        for (; opened == IO_OK; opened = iload->OpenChunk()) {
            const IOResult chunk = loadChunk(*iload);
            if (chunk != IO_OK) return chunk;
            iload->CloseChunk();
        }
        return opened == IO_END ? IO_OK : opened;
    });
    if (result != IO_OK) util::logLine(Log::kError, "Unable to read a helper object of the scene");
    return result;
}

IOResult CustomHelperObject::loadChunk(ILoad& load) {
    switch (load.CurChunkID()) {
        case kVertexChunk:
            return loadVertices(load);
        case kFaceChunk:
            return loadFaces(load);
        case kLookChunk:
            return loadLook(load);
        default:
            return IO_OK;
    }
}

IOResult CustomHelperObject::loadVertices(ILoad& load) {
    std::size_t count = 0;
    const IOResult result = readCount(load, kVertexBytes, "vertices", count);
    if (result != IO_OK) return result;
    shape_.vertices.assign(count, util::Point3d{});
    return readBytes(load, shape_.vertices.data(), count * kVertexBytes);
}

IOResult CustomHelperObject::loadFaces(ILoad& load) {
    std::size_t count = 0;
    const IOResult result = readCount(load, kFaceBytes, "triangles", count);
    if (result != IO_OK) return result;
    shape_.faces.assign(count * 3, 0);
    return readBytes(load, shape_.faces.data(), count * kFaceBytes);
}

IOResult CustomHelperObject::loadLook(ILoad& load) {
    struct {
        std::array<float, 3> color;
        std::array<unsigned char, kFlagCount> switches;
    } look{};
    static_assert(sizeof look == kColorBytes + kFlagCount, "stored as it lies in memory");

    const std::size_t length = std::min<std::size_t>(load.CurChunkLength(), sizeof look);
    if (length < sizeof look) util::logLine(Log::kWarning, "A helper object lacks part of its look");
    const IOResult result = readBytes(load, &look, length);
    if (result != IO_OK) return result;

    const bool usable = length >= kColorBytes && std::all_of(look.color.begin(), look.color.end(),
                                                             [](float part) { return std::isfinite(part); });
    if (usable) color_ = look.color;
    for (std::size_t i = 0; kColorBytes + i < length; ++i)
        flags_[i] = look.switches[i] != 0;
    return IO_OK;
}

}  // namespace qvo::zmx::adaptor::max
