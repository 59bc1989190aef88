#include "adaptor/max/controllers/KeyRange.h"

#include <algorithm>

#include "adaptor/max/controllers/BaseControl.h"
#include "adaptor/max/plugin/ClassIds.h"

namespace qvo::zmx::adaptor::max {
namespace {

using Range = std::optional<Interval>;

template <typename T>
Range tableRange(const KeyTable<T>& keys) {
    if (keys.empty()) return std::nullopt;
    return Interval(keys.first().time, keys.last().time);
}

/// `source` as a controller of ours, else null. The ids are asked first: an object of the host's may lack
/// what a dynamic cast needs.
template <typename T>
BaseControl<T>* asOwn(Animatable& source, SClass_ID superClassId, const Class_ID& classId) {
    const bool isOwn = source.SuperClassID() == superClassId && source.ClassID() == classId;
    return isOwn ? dynamic_cast<BaseControl<T>*>(&source) : nullptr;
}

Range ownRange(Animatable& source) {
    if (const auto* const scalar = asOwn<float>(source, CTRL_FLOAT_CLASS_ID, kScalarControlClassId))
        return tableRange(scalar->keys());
    if (const auto* const transform = asOwn<Matrix3>(source, CTRL_MATRIX3_CLASS_ID, kTransformControlClassId))
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
