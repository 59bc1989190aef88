#include "maxhost/src/objects/ChunkData.h"

namespace maxhost {

IOResult writeChunk(ISave& save, USHORT id, const void* bytes, size_t size) {
    if (size > std::numeric_limits<ULONG>::max()) return IO_ERROR;
    const IOResult begun = save.BeginChunk(id);
    if (begun != IO_OK) return begun;
    const IOResult written = save.Write(bytes, static_cast<ULONG>(size), nullptr);
    const IOResult ended = save.EndChunk();
    return written != IO_OK ? written : ended;
}

}  // namespace maxhost
