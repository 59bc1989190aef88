#include "maxhost/src/files/ChunkReader.h"

#include <algorithm>
#include <cstring>

#include "maxhost/src/files/SceneFormat.h"

namespace maxhost {

bool takeChunk(ByteSpan& rest, Chunk& chunk) {
    if (rest.size < format::kChunkHeaderSize) return false;
    std::uint16_t id;
    std::uint64_t length;
    std::memcpy(&id, rest.data, sizeof id);
    std::memcpy(&length, rest.data + sizeof id, sizeof length);
    const bool container = (length & format::kContainerBit) != 0;
    length &= ~format::kContainerBit;
    if (length > rest.size - format::kChunkHeaderSize) return false;
    chunk.id = id;
    chunk.container = container;
    chunk.content = {rest.data + format::kChunkHeaderSize, static_cast<size_t>(length)};
    rest.data += format::kChunkHeaderSize + chunk.content.size;
    rest.size -= format::kChunkHeaderSize + chunk.content.size;
    return true;
}

bool chunksAreWhole(ByteSpan chunks, ChunkDamage& damage) {
    struct Level {
        ByteSpan rest;
        USHORT id;
    };
    std::vector<Level> levels{{chunks, 0}};
    while (!levels.empty()) {
        Level& level = levels.back();
        if (level.rest.size == 0) {
            levels.pop_back();
            continue;
        }
        Chunk chunk;
        damage.offset = static_cast<size_t>(level.rest.data - chunks.data);
        damage.id = level.id;
        if (!takeChunk(level.rest, chunk)) return false;
        if (chunk.container) levels.push_back({chunk.content, chunk.id});
    }
    return true;
}

IOResult ChunkReader::OpenChunk() {
    Level& level = levels_.back();
    if (!level.container || level.rest.size == 0) return IO_END;
    if (!takeChunk(level.rest, current_)) return IO_ERROR;
    levels_.push_back({current_.content, current_.container});
    return IO_OK;
}

ULONG ChunkReader::CurChunkLength() {
    return static_cast<ULONG>(std::min<size_t>(current_.content.size, 0xffffffffu));
}

IOResult ChunkReader::CloseChunk() {
    if (levels_.size() == 1) return IO_ERROR;
    levels_.pop_back();
    return IO_OK;
}

USHORT ChunkReader::PeekNextChunkID() {
    ByteSpan rest = levels_.back().rest;
    Chunk next;
    return levels_.back().container && takeChunk(rest, next) ? next.id : USHORT(0);
}

IOResult ChunkReader::Read(void* buf, ULONG nbytes, ULONG* nread) {
    ByteSpan& rest = levels_.back().rest;
    const bool inChunk = levels_.size() > 1;
    const size_t count = inChunk && buf != nullptr ? std::min<size_t>(nbytes, rest.size) : 0;
    if (count > 0) std::memcpy(buf, rest.data, count);
    rest.data += count;
    rest.size -= count;
    if (nread != nullptr) *nread = static_cast<ULONG>(count);
    return count == nbytes ? IO_OK : IO_ERROR;
}

IOResult ChunkReader::ReadCStringChunk(char** buf) {
    if (levels_.size() == 1 || buf == nullptr) return IO_ERROR;
    ByteSpan& rest = levels_.back().rest;
    text_.assign(rest.data, rest.data + rest.size);
    text_.push_back('\0');
    rest.data += rest.size;
    rest.size = 0;
    *buf = text_.data();
    return IO_OK;
}

void ChunkReader::RegisterPostLoadCallback(PostLoadCallback* cb) {
    if (cb != nullptr && callbacks_ != nullptr) callbacks_->push_back(cb);
}

}  // namespace maxhost
