#pragma once

#include <ioapi.h>

#include <algorithm>
#include <limits>
#include <type_traits>
#include <vector>

namespace maxhost {

/// One data chunk of `size` bytes.
IOResult writeChunk(ISave& save, USHORT id, const void* bytes, size_t size);

/// One chunk of raw values; none at all for an empty list.
template <class T>
IOResult writeArray(ISave& save, USHORT id, const T* items, size_t count) {
    static_assert(std::is_trivially_copyable<T>::value, "stored as it lies in memory");
    return count == 0 ? IO_OK : writeChunk(save, id, items, count * sizeof(T));
}

/// The open chunk as one value. IO_ERROR when the chunk has another size.
template <class T>
IOResult readValue(ILoad& load, T& value) {
    static_assert(std::is_trivially_copyable<T>::value, "stored as it lies in memory");
    return load.CurChunkLength() == sizeof(T) ? load.Read(&value, sizeof(T), nullptr) : IO_ERROR;
}

/// The open chunk as a list of values. IO_ERROR when its length is no multiple of theirs. Grows with what has
/// been read: a stated length alone takes no memory.
template <class T>
IOResult readArray(ILoad& load, std::vector<T>& items) {
    static_assert(std::is_trivially_copyable<T>::value, "stored as it lies in memory");
    constexpr size_t kBlock = 4096;
    const size_t length = load.CurChunkLength();
    if (length % sizeof(T) != 0) return IO_ERROR;
    items.clear();
    for (size_t left = length / sizeof(T); left > 0;) {
        const size_t count = std::min(left, kBlock), have = items.size();
        items.resize(have + count);
        const IOResult read = load.Read(items.data() + have, static_cast<ULONG>(count * sizeof(T)), nullptr);
        if (read != IO_OK) return read;
        left -= count;
    }
    return IO_OK;
}

/// Opens all chunks of the present level, calls `read(id)` for each and closes it. Ends at the first result
/// that is not IO_OK and answers with it.
template <class Read>
IOResult readChunks(ILoad& load, Read read) {
    IOResult opened = load.OpenChunk();
    for (; opened == IO_OK; opened = load.OpenChunk()) {
        const IOResult done = read(load.CurChunkID());
        const IOResult closed = load.CloseChunk();
        if (done != IO_OK) return done;
        if (closed != IO_OK) return closed;
    }
    return opened == IO_END ? IO_OK : opened;
}

/// The one chunk `id` of the present level into `value`, which stays as it is when the chunk is missing, has
/// another size or does not hold what `isValid` asks for: IO_ERROR.
template <class T, class IsValid>
IOResult readOne(ILoad& load, USHORT id, T& value, IsValid isValid) {
    T found{};
    bool any = false;
    const IOResult read = readChunks(load, [&](USHORT each) {
        any = any || each == id;
        return each == id ? readValue(load, found) : IO_OK;
    });
    if (read != IO_OK) return read;
    if (!any || !isValid(found)) return IO_ERROR;
    value = found;
    return IO_OK;
}

}  // namespace maxhost
