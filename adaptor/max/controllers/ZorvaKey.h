#pragma once

#include <type_traits>

#include "adaptor/max/Host.h"

namespace qvo::zmx::adaptor::max {

/// Time of a key that stands for nothing: no value is cached, or there is no key.
inline constexpr TimeValue kNoTime = -1;

/// One key. Stored raw in scene files: its layout never changes.
template <typename T>
struct ZorvaKey {
    DWORD flags;     ///< 1: selected in the track view. Keys that the controllers make have 0.
    TimeValue time;  ///< host ticks
    T value;         ///< a float, or a transform relative to the node's parent
};

static_assert(sizeof(ZorvaKey<float>) == 12, "stored raw in scene files");
static_assert(sizeof(ZorvaKey<Matrix3>) == 60, "stored raw in scene files");
static_assert(std::is_standard_layout_v<ZorvaKey<float>> && std::is_standard_layout_v<ZorvaKey<Matrix3>>,
              "stored raw in scene files");

}  // namespace qvo::zmx::adaptor::max
