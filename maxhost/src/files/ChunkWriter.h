#pragma once

#include <max.h>

#include <unordered_map>
#include <utility>
#include <vector>

#include "maxhost/src/files/Bytes.h"

namespace maxhost {

/// Numbers by which a file knows reference targets.
using TargetNumbers = std::unordered_map<const void*, int>;

/// Writes chunks into memory; amortised constant cost for each byte. The first mistake of a caller (data
/// beside chunks in one chunk, an end too many) makes every later operation fail.
class CoreExport ChunkWriter final : public ISave {
  public:
    ChunkWriter() = default;
    /// Begins behind bytes that are no chunks.
    explicit ChunkWriter(Bytes header) : bytes_(std::move(header)) {}

    // ---- ISave ----
    IOResult BeginChunk(USHORT id) override;
    IOResult EndChunk() override;
    IOResult Write(const void* buf, ULONG nbytes, ULONG* nwrit) override;
    IOResult WriteCString(const char* str) override;
    int GetRefID(void* target) override;
    DWORD SavingVersion() override { return 0; }

    /// Targets that GetRefID can name; not owned, null for none.
    void setTargetNumbers(const TargetNumbers* numbers) { numbers_ = numbers; }
    /// The open chunk holds chunks even if none is written into it.
    void markContainer();
    /// Whole chunks, as somebody else has written them.
    void writeChunks(const Bytes& chunks);
    /// A data chunk; any size.
    void writeData(USHORT id, const void* data, size_t size);

    bool failed() const { return failed_; }
    int depth() const { return static_cast<int>(open_.size()); }
    size_t size() const { return bytes_.size(); }
    const Bytes& bytes() const { return bytes_; }
    Bytes take() { return std::move(bytes_); }

  private:
    enum class Kind { undecided, data, container };
    struct Open {
        size_t contentBegin;
        Kind kind;
    };

    IOResult fail() {
        failed_ = true;
        return IO_ERROR;
    }
    bool becomes(Kind kind);
    void append(const void* data, size_t size);

    Bytes bytes_;
    std::vector<Open> open_;
    const TargetNumbers* numbers_ = nullptr;
    bool failed_ = false;
};

}  // namespace maxhost
