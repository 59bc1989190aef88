#pragma once

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "adaptor/max/Host.h"

namespace qvo::zmx::test {

/// One level of chunks in memory: what an object saves, and what a test may damage before the object loads
/// it.
struct Chunk {
    USHORT id;
    std::string bytes;
};
using ChunkList = std::vector<Chunk>;

/// Collects the chunks that an object writes; `failAfter` writes that succeed, then the disk is full.
class ChunkSaver : public ISave {
  public:
    ChunkList chunks;
    int failAfter = 1 << 30;

    IOResult BeginChunk(USHORT id) override {
        if (open_) return IO_ERROR;
        open_ = true;
        chunks.push_back({id, {}});
        return IO_OK;
    }
    IOResult EndChunk() override {
        const bool wasOpen = open_;
        open_ = false;
        return wasOpen ? IO_OK : IO_ERROR;
    }
    IOResult Write(const void* buffer, ULONG size, ULONG* written) override {
        const bool fits = open_ && failAfter-- > 0;
        if (fits) chunks.back().bytes.append(static_cast<const char*>(buffer), size);
        if (written) *written = fits ? size : 0;
        return fits ? IO_OK : IO_ERROR;
    }
    IOResult WriteCString(const char* text) override {
        return Write(text, static_cast<ULONG>(std::strlen(text) + 1), nullptr);
    }
    int GetRefID(void* /*target*/) override { return -1; }

    /// Every chunk that was begun has been ended.
    bool balanced() const { return !open_; }

  private:
    bool open_ = false;
};

/// Hands chunks out by the host's rules: reads never leave the chunk, closing skips the rest.
class ChunkLoader : public ILoad {
  public:
    explicit ChunkLoader(ChunkList chunks) : chunks_(std::move(chunks)) {}

    IOResult OpenChunk() override {
        if (open_ || next_ == chunks_.size()) return open_ ? IO_ERROR : IO_END;
        open_ = true;
        position_ = 0;
        ++next_;
        return IO_OK;
    }
    USHORT CurChunkID() override { return current().id; }
    ChunkType CurChunkType() override { return DATA_CHUNK; }
    ULONG CurChunkLength() override { return static_cast<ULONG>(current().bytes.size()); }
    int CurChunkDepth() override { return open_ ? 1 : 0; }
    IOResult CloseChunk() override {
        const bool wasOpen = open_;
        open_ = false;
        return wasOpen ? IO_OK : IO_ERROR;
    }
    USHORT PeekNextChunkID() override { return next_ < chunks_.size() ? chunks_[next_].id : USHORT{0}; }
    IOResult Read(void* buffer, ULONG size, ULONG* got) override {
        const std::size_t count = std::min<std::size_t>(size, current().bytes.size() - position_);
        if (count > 0) std::memcpy(buffer, current().bytes.data() + position_, count);
        position_ += count;
        if (got) *got = static_cast<ULONG>(count);
        return count == size ? IO_OK : IO_ERROR;
    }
    /// A chunk whose last byte is not zero holds no string.
    IOResult ReadCStringChunk(char** text) override {
        std::string& bytes = chunks_[next_ - 1].bytes;
        if (bytes.empty() || bytes.back() != '\0') return IO_ERROR;
        *text = bytes.data();
        return IO_OK;
    }
    void RegisterPostLoadCallback(PostLoadCallback* /*callback*/) override {}
    void SetObsolete() override {}

    /// Every chunk was opened and closed.
    bool finished() const { return !open_ && next_ == chunks_.size(); }

  private:
    const Chunk& current() const { return chunks_[next_ - 1]; }

    ChunkList chunks_;
    std::size_t next_ = 0;  ///< index of the chunk that the next OpenChunk opens
    std::size_t position_ = 0;
    bool open_ = false;
};

}  // namespace qvo::zmx::test
