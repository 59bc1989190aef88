#pragma once

#include "adaptor/max/controllers/KeyTable.h"

namespace qvo::zmx::adaptor::max {

/// How a controller stands in a scene file. The chunk, all numbers raw little-endian: version (100), size of
/// a key (12 or 60), number of keys, the keys in order of time, the current key. Changing any of this makes
/// existing scenes lose their keys.

/// IO_ERROR when the file could not be written whole.
template <typename T>
IOResult saveKeys(ISave& isave, const KeyTable<T>& keys, const ZorvaKey<T>& current);

/// Reads the next chunk into `keys`, which must be empty, and `current`. A chunk of another kind changes
/// nothing. The stored count is not believed: reading ends where the chunk ends. Keys that do not rise in
/// time are dropped; all bytes of the others come back as they were written. `current` changes only when it
/// is there and finite.
template <typename T>
void loadKeys(ILoad& iload, KeyTable<T>& keys, ZorvaKey<T>& current);

extern template IOResult saveKeys(ISave&, const KeyTable<float>&, const ZorvaKey<float>&);
extern template IOResult saveKeys(ISave&, const KeyTable<Matrix3>&, const ZorvaKey<Matrix3>&);
extern template void loadKeys(ILoad&, KeyTable<float>&, ZorvaKey<float>&);
extern template void loadKeys(ILoad&, KeyTable<Matrix3>&, ZorvaKey<Matrix3>&);

}  // namespace qvo::zmx::adaptor::max
