#pragma once

#include <optional>

#include "adaptor/max/Host.h"

namespace qvo::zmx::adaptor::max {

/// Times of the first and the last key of `source` and everything animatable below it (the keys of a default
/// controller lie in its parts); none when there are no keys. The plug-in's own controllers are asked for
/// their table, because NumKeys may hide it.
std::optional<Interval> keyRange(Animatable& source);

}  // namespace qvo::zmx::adaptor::max
