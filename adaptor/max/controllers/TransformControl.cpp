#include "adaptor/max/controllers/TransformControl.h"

#include <optional>
#include <utility>

#include "adaptor/max/Boundary.h"
#include "adaptor/max/ClassIds.h"
#include "adaptor/max/controllers/Interpolation.h"
#include "adaptor/max/controllers/KeyValue.h"
#include "adaptor/max/controllers/RollupDialog.h"
#include "adaptor/max/nodes/HostSpace.h"

namespace qvo::zmx::adaptor::max {
namespace {

/// The inverse; the identity, and `singular` set, when there is none.
Matrix4 inverseOrIdentity(const Matrix3& matrix, bool& singular) {
    const std::optional<Matrix4> inverse = affineInverse(widened(matrix));
    if (!inverse) singular = true;
    return inverse.value_or(kIdentityMatrix4);
}

/// The packet's own change, in its axis system.
Matrix4 increment(const SetXFormPacket& packet) {
    Matrix3 matrix(1);
    switch (packet.command) {
        case XFORM_MOVE:
            return widened(TransMatrix(packet.p));
        case XFORM_ROTATE:
            packet.q.MakeMatrix(matrix);
            return widened(matrix);
        case XFORM_SCALE:
            return widened(ScaleMatrix(packet.p));
        case XFORM_SET:
            break;
    }
    return kIdentityMatrix4;
}

/// The local matrix after a packet's command, applied to the local matrix `local`. A singular parent or axis
/// system is left out.
Matrix4 applied(const SetXFormPacket& packet, const Matrix4& local, bool& singular) {
    const Matrix4 toLocal = inverseOrIdentity(packet.tmParent, singular);
    const Matrix4 axes = widened(packet.tmAxis);
    if (packet.command == XFORM_SET) return local * axes * toLocal;
    const Matrix4 toAxes = inverseOrIdentity(packet.tmAxis, singular);
    return local * widened(packet.tmParent) * toAxes * increment(packet) * axes * toLocal;
}

}  // namespace

TransformControl::TransformControl()
    : BaseControl(CTRL_MATRIX3_CLASS_ID, kTransformControlClassId, "Zorva Transform control"),
      listEntry_(*this) {}

TransformControl::~TransformControl() {
    forgetPage();
}

void TransformControl::BeginEditParams(IObjParam* ip, ULONG flags, Animatable* /*prev*/) {
    if (page_) EndEditParams(ip, flags, nullptr);
    pageInterface_ = ip;
    page_ = openRollup(*ip, *this);
}

void TransformControl::EndEditParams(IObjParam* ip, ULONG /*flags*/, Animatable* /*next*/) {
    const HWND page = page_;
    forgetPage();
    if (page) ip->DeleteRollupPage(page);
}

void TransformControl::forgetPage() {
    if (page_) detachRollup(page_);
    page_ = nullptr;
    pageInterface_ = nullptr;
}

void TransformControl::GetValue(TimeValue t, void* val, Interval& valid, GetSetMethod method) {
    valid.SetInstant(t);
    Matrix3& matrix = *static_cast<Matrix3*>(val);
    const bool isRelative = method == CTRL_RELATIVE;
    if (!isCached(t)) cache(evaluate(t, isRelative ? &matrix : nullptr));
    matrix = isRelative ? current_.value * matrix : current_.value;
}

void TransformControl::SetValue(TimeValue t, void* val, int /*commit*/, GetSetMethod method) {
    const auto& packet = *static_cast<const SetXFormPacket*>(val);
    const bool isRelative = method == CTRL_RELATIVE;
    if (isRelative && isStale()) cache(evaluate(t, &packet.tmParent));
    const Matrix4 start = isRelative ? widened(current_.value) : kIdentityMatrix4;
    bool singular = false;
    setValueAt(t, narrowed(applied(packet, start, singular)));
    if (!singular || std::exchange(toldSingular_, true)) return;  // a drag sets many values
    util::logLine(util::Log::kWarning, "Set transform: a singular parent or axis system is left out");
}

BOOL TransformControl::ChangeParents(TimeValue /*t*/, const Matrix3& oldP, const Matrix3& newP,
                                     const Matrix3& /*tm*/) {
    const std::optional<Matrix4> toNewParent = affineInverse(widened(newP));
    if (!toNewParent || !isFinite(newP) || !isFinite(oldP)) {
        util::logLine(util::Log::kWarning, "Change of parent: a singular parent; the keys stay as they are");
        return TRUE;
    }
    guarded("ChangeParents", [&] {
        recordTable();
        const Matrix4 change = widened(oldP) * *toNewParent;
        for (int i = 0; i < keys_.size(); ++i)
            keys_[i].value = narrowed(widened(keys_[i].value) * change);
        // Changes along with the keys, so it still stands for its time.
        current_.value = narrowed(widened(current_.value) * change);
        notifyChange();
    });
    return TRUE;
}

TransformControl::Key TransformControl::keyAtTime(TimeValue t) {
    return evaluate(t, nullptr);
}

TransformControl::Key TransformControl::evaluate(TimeValue t, const Matrix3* parent) const {
    if (keys_.empty()) return {0, t, current_.value};
    const auto [left, right] = keys_.around(t);
    if (left == right) return {0, t, usable(keys_[left].value, t)};
    return {0, t, usable(blendedAt(t, keys_[left], keys_[right], parent), t)};
}

Matrix3 TransformControl::blendedAt(TimeValue t, const Key& left, const Key& right,
                                    const Matrix3* parent) const {
    const double passed = static_cast<double>(t) - left.time;
    const double f = passed / (static_cast<double>(right.time) - left.time);
    const Matrix4 a = widened(left.value);
    const Matrix4 b = widened(right.value);
    return narrowed(parent && isFinite(*parent) ? blendedUnder(widened(*parent), a, b, f) : blended(a, b, f));
}

}  // namespace qvo::zmx::adaptor::max
