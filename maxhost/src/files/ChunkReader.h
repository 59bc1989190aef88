#pragma once

#include <max.h>

#include <cstdint>
#include <vector>

#include "maxhost/src/files/Bytes.h"

namespace maxhost {

/// Header and place of one chunk.
struct Chunk {
    USHORT id = 0;
    bool container = false;
    ByteSpan content;
};

/// Takes the chunk at the front of `rest` off. False, and nothing taken, when what is there is no whole
/// chunk.
bool takeChunk(ByteSpan& rest, Chunk& chunk);

/// Looks at every chunk of a sequence, at any depth, without recursion. Returns false, with the place and the
/// id of the chunk, at the first one that does not lie whole in its container.
struct ChunkDamage {
    size_t offset = 0;  ///< from the start of the sequence
    USHORT id = 0;      ///< of the container, 0 at the top
};
bool chunksAreWhole(ByteSpan chunks, ChunkDamage& damage);

/// Reads chunks that one object or utility wrote, and nothing beyond them: whatever is left open or unread
/// when the reader goes does no harm. Chunks inside one that holds data do not exist.
class CoreExport ChunkReader : public ILoad {
  public:
    /// chunks     kept by the caller
    /// callbacks  where callbacks for the end of the reading go; not owned
    ChunkReader(ByteSpan chunks, std::vector<PostLoadCallback*>* callbacks) : callbacks_(callbacks) {
        levels_.push_back({chunks, true});
    }

    // ---- ILoad ----
    IOResult OpenChunk() override;
    USHORT CurChunkID() override { return current_.id; }
    ChunkType CurChunkType() override { return current_.container ? CONTAINER_CHUNK : DATA_CHUNK; }
    /// At most 0xffffffff.
    ULONG CurChunkLength() override;
    int CurChunkDepth() override { return static_cast<int>(levels_.size()) - 1; }
    IOResult CloseChunk() override;
    USHORT PeekNextChunkID() override;
    IOResult Read(void* buf, ULONG nbytes, ULONG* nread) override;
    /// Text that lacks its final zero gets one.
    IOResult ReadCStringChunk(char** buf) override;
    void RegisterPostLoadCallback(PostLoadCallback* cb) override;
    void SetObsolete() override {}

  private:
    struct Level {
        ByteSpan rest;
        bool container;
    };

    std::vector<Level> levels_;
    Chunk current_;
    std::vector<char> text_;
    std::vector<PostLoadCallback*>* callbacks_;
};

}  // namespace maxhost
