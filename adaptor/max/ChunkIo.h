#pragma once

#include <cstddef>
#include <limits>

#include "adaptor/max/Host.h"

/// Bytes of a scene file's chunks. What the host wrote or read in part counts as an error.
namespace qvo::zmx::adaptor::max {

inline IOResult writeBytes(ISave& save, const void* bytes, std::size_t size) {
    if (size == 0) return IO_OK;
    if (size > std::numeric_limits<ULONG>::max()) return IO_ERROR;
    ULONG written = 0;
    const IOResult result = save.Write(bytes, static_cast<ULONG>(size), &written);
    return result == IO_OK && written != size ? IO_ERROR : result;
}

/// `size` is at most the length of the open chunk.
inline IOResult readBytes(ILoad& load, void* bytes, std::size_t size) {
    if (size == 0) return IO_OK;
    ULONG got = 0;
    const IOResult result = load.Read(bytes, static_cast<ULONG>(size), &got);
    return result == IO_OK && got != size ? IO_ERROR : result;
}

/// A chunk with what `write()` writes; it is ended whatever comes of that.
template <class Write>
IOResult writeChunk(ISave& save, USHORT id, Write&& write) {
    const IOResult begun = save.BeginChunk(id);
    if (begun != IO_OK) return begun;
    const IOResult written = write();
    const IOResult ended = save.EndChunk();
    return written != IO_OK ? written : ended;
}

}  // namespace qvo::zmx::adaptor::max
