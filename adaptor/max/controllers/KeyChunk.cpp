#include "adaptor/max/controllers/KeyChunk.h"

#include <cstdint>

#include "adaptor/max/ChunkIo.h"
#include "adaptor/max/controllers/KeyValue.h"

namespace qvo::zmx::adaptor::max {
namespace {

constexpr USHORT kKeyChunk = 1;
constexpr std::uint32_t kKeyVersion = 100;

template <typename Record>
bool write(ISave& isave, const Record& record) {
    return writeBytes(isave, &record, sizeof(record)) == IO_OK;
}

template <typename Record>
bool read(ILoad& iload, Record& record) {
    return readBytes(iload, &record, sizeof(record)) == IO_OK;
}

template <typename T>
bool writeAll(ISave& isave, const KeyTable<T>& keys, const ZorvaKey<T>& current) {
    const auto keySize = static_cast<std::uint32_t>(sizeof(ZorvaKey<T>));
    const auto count = static_cast<std::uint32_t>(keys.size());
    if (!write(isave, kKeyVersion) || !write(isave, keySize) || !write(isave, count)) return false;
    for (int i = 0; i < keys.size(); ++i)
        if (!write(isave, keys[i])) return false;
    return write(isave, current);
}

template <typename T>
void readAll(ILoad& iload, KeyTable<T>& keys, ZorvaKey<T>& current) {
    std::uint32_t version = 0;
    std::uint32_t keySize = 0;
    std::uint32_t count = 0;
    if (!read(iload, version) || version != kKeyVersion) return;
    if (!read(iload, keySize) || keySize != sizeof(ZorvaKey<T>)) return;
    if (!read(iload, count)) return;

    ZorvaKey<T> key{0, 0, KeyValue<T>::zero()};
    for (std::uint32_t i = 0; i < count; ++i) {
        if (!read(iload, key)) return;
        if (keys.empty() || key.time > keys.last().time) keys.append(key);
    }
    if (read(iload, key) && KeyValue<T>::isFinite(key.value)) current = key;
}

}  // namespace

template <typename T>
IOResult saveKeys(ISave& isave, const KeyTable<T>& keys, const ZorvaKey<T>& current) {
    const IOResult result =
        writeChunk(isave, kKeyChunk, [&] { return writeAll(isave, keys, current) ? IO_OK : IO_ERROR; });
    return result == IO_OK ? IO_OK : IO_ERROR;
}

template <typename T>
void loadKeys(ILoad& iload, KeyTable<T>& keys, ZorvaKey<T>& current) {
    if (iload.OpenChunk() != IO_OK) return;
    if (iload.CurChunkID() == kKeyChunk) readAll(iload, keys, current);
    iload.CloseChunk();
}

template IOResult saveKeys(ISave&, const KeyTable<float>&, const ZorvaKey<float>&);
template IOResult saveKeys(ISave&, const KeyTable<Matrix3>&, const ZorvaKey<Matrix3>&);
template void loadKeys(ILoad&, KeyTable<float>&, ZorvaKey<float>&);
template void loadKeys(ILoad&, KeyTable<Matrix3>&, ZorvaKey<Matrix3>&);

}  // namespace qvo::zmx::adaptor::max
