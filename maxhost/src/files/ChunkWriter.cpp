#include "maxhost/src/files/ChunkWriter.h"

#include <cstring>

#include "maxhost/src/files/SceneFormat.h"

namespace maxhost {

void ChunkWriter::append(const void* data, size_t size) {
    if (size == 0) return;
    const unsigned char* const begin = static_cast<const unsigned char*>(data);
    bytes_.insert(bytes_.end(), begin, begin + size);
}

bool ChunkWriter::becomes(Kind kind) {
    if (failed_) return false;
    if (open_.empty()) return kind == Kind::container;
    Kind& present = open_.back().kind;
    if (present == Kind::undecided) present = kind;
    return present == kind;
}

IOResult ChunkWriter::BeginChunk(USHORT id) {
    if (!becomes(Kind::container)) return fail();
    const std::uint16_t storedId = id;
    const std::uint64_t lengthToCome = 0;
    append(&storedId, sizeof storedId);
    append(&lengthToCome, sizeof lengthToCome);
    open_.push_back({bytes_.size(), Kind::undecided});
    return IO_OK;
}

IOResult ChunkWriter::EndChunk() {
    if (failed_ || open_.empty()) return fail();
    const Open chunk = open_.back();
    open_.pop_back();
    std::uint64_t length = bytes_.size() - chunk.contentBegin;
    if (chunk.kind == Kind::container) length |= format::kContainerBit;
    std::memcpy(&bytes_[chunk.contentBegin - sizeof length], &length, sizeof length);
    return IO_OK;
}

IOResult ChunkWriter::Write(const void* buf, ULONG nbytes, ULONG* nwrit) {
    if (nwrit != nullptr) *nwrit = 0;
    if (open_.empty() || !becomes(Kind::data) || (buf == nullptr && nbytes > 0)) return fail();
    append(buf, nbytes);
    if (nwrit != nullptr) *nwrit = nbytes;
    return IO_OK;
}

IOResult ChunkWriter::WriteCString(const char* str) {
    const char* const text = str == nullptr ? "" : str;
    if (open_.empty() || !becomes(Kind::data)) return fail();
    append(text, std::strlen(text) + 1);
    return IO_OK;
}

int ChunkWriter::GetRefID(void* target) {
    if (numbers_ == nullptr) return -1;
    const auto found = numbers_->find(target);
    return found == numbers_->end() ? -1 : found->second;
}

void ChunkWriter::markContainer() {
    if (!becomes(Kind::container)) fail();
}

void ChunkWriter::writeChunks(const Bytes& chunks) {
    if (!becomes(Kind::container))
        fail();
    else
        append(chunks.data(), chunks.size());
}

void ChunkWriter::writeData(USHORT id, const void* data, size_t size) {
    BeginChunk(id);
    if (becomes(Kind::data))
        append(data, size);
    else
        fail();
    EndChunk();
}

}  // namespace maxhost
