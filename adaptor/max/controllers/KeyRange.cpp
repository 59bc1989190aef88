#include "adaptor/max/controllers/KeyRange.h"

#include <algorithm>

#include "adaptor/max/controllers/OwnControl.h"

namespace qvo::zmx::adaptor::max {
namespace {

using Range = std::optional<Interval>;

template <typename T>
Range tableRange(const KeyTable<T>& keys) {
    if (keys.empty()) return std::nullopt;
    return Interval(keys.first().time, keys.last().time);
}

Range ownRange(Animatable& source) {
    if (const ScalarControl* const scalar = ownScalarControl(&source)) return tableRange(scalar->keys());
    if (const TransformControl* const transform = ownTransformControl(&source))
        return tableRange(transform->keys());
    const int count = source.NumKeys();
    if (count <= 0) return std::nullopt;
    return Interval(source.GetKeyTime(0), source.GetKeyTime(count - 1));
}

}  // namespace

Range keyRange(Animatable& source) {
    Range range = ownRange(source);
    for (int i = 0; i < source.NumSubs(); ++i) {
        Animatable* const part = source.SubAnim(i);
        const Range partRange = part ? keyRange(*part) : std::nullopt;
        if (!partRange) continue;
        range = range ? Interval(std::min(range->Start(), partRange->Start()),
                                 std::max(range->End(), partRange->End()))
                      : *partRange;
    }
    return range;
}

}  // namespace qvo::zmx::adaptor::max
