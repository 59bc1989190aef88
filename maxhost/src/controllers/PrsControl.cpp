#include "maxhost/src/controllers/PrsControl.h"

#include <cmath>

#include <decomp.h>
#include <hold.h>

namespace maxhost {

namespace {

constexpr SClass_ID kPartSuperClass[] = {CTRL_POSITION_CLASS_ID, CTRL_ROTATION_CLASS_ID, CTRL_SCALE_CLASS_ID};
constexpr unsigned kAllParts = 7;

constexpr unsigned bit(PrsControl::Part part) {
    return 1u << part;
}

bool isFinite(const Matrix3& m) {
    for (int i = 0; i < 4; ++i)
        if (!PositionTraits::isFinite(m.GetRow(i))) return false;
    return true;
}

/// What a packet makes of a local transform.
Matrix3 applied(const SetXFormPacket& packet, const Matrix3& local) {
    const Matrix3 fromParent = Inverse(packet.tmParent);
    if (packet.command == XFORM_SET) return local * packet.tmAxis * fromParent;
    Matrix3 change(1);
    if (packet.command == XFORM_MOVE) change.SetTrans(packet.p);
    if (packet.command == XFORM_ROTATE) packet.q.MakeMatrix(change);
    if (packet.command == XFORM_SCALE) change.Scale(packet.p);
    return local * packet.tmParent * Inverse(packet.tmAxis) * change * packet.tmAxis * fromParent;
}

unsigned partsConcerned(const SetXFormPacket& packet, GetSetMethod method) {
    if (packet.command == XFORM_SET || method == CTRL_ABSOLUTE) return kAllParts;
    const unsigned place = packet.localOrigin ? 0 : bit(PrsControl::kPosition);
    if (packet.command == XFORM_ROTATE) return place | bit(PrsControl::kRotation);
    if (packet.command == XFORM_SCALE) return place | bit(PrsControl::kScale);
    return bit(PrsControl::kPosition);
}

}  // namespace

PrsControl::PrsControl(bool withParts) {
    if (!withParts) return;
    adopt(kPosition, NewDefaultPositionController());
    adopt(kRotation, NewDefaultRotationController());
    adopt(kScale, NewDefaultScaleController());
}

void PrsControl::adopt(int part, Control* control) {
    // Building an object is no edit: nothing of it may be undone on its own.
    const HoldSuspend suspend;
    ReplaceReference(part, control);
}

void PrsControl::DeleteThis() {
    {
        const HoldSuspend suspend;
        DeleteAllRefsFromMe();
    }
    delete this;
}

TSTR PrsControl::SubAnimName(int i) {
    static const TCHAR* const kNames[] = {_T("Position"), _T("Rotation"), _T("Scale")};
    return isPart(i) ? TSTR(kNames[i]) : TSTR();
}

BOOL PrsControl::AssignController(Animatable* control, int subAnim) {
    if (!isPart(subAnim) || control == nullptr || control->SuperClassID() != kPartSuperClass[subAnim])
        return FALSE;
    return ReplaceReference(subAnim, static_cast<Control*>(control)) == REF_SUCCEED ? TRUE : FALSE;
}

Interval PrsControl::GetTimeRange(DWORD flags) {
    Interval range;
    for (Control* const part : parts_) {
        const Interval of = part == nullptr ? Interval() : part->GetTimeRange(flags);
        if (of.Empty()) continue;
        range += of.Start();
        range += of.End();
    }
    return range;
}

void PrsControl::SetReference(int i, RefTargetHandle target) {
    if (!isPart(i)) return;
    const bool fits = target != nullptr && target->SuperClassID() == kPartSuperClass[i];
    parts_[i] = fits ? static_cast<Control*>(target) : nullptr;
}

RefTargetHandle PrsControl::Clone(RemapDir& remap) {
    auto* const clone = new PrsControl(false);
    for (int i = 0; i < kPartCount; ++i)
        clone->adopt(i, static_cast<Control*>(remap.CloneRef(parts_[i])));
    BaseClone(this, clone, remap);
    return clone;
}

Matrix3 PrsControl::localAt(TimeValue t, Interval& valid) {
    Point3 position(0, 0, 0);
    Quat rotation;
    ScaleValue scale;
    void* const values[] = {&position, &rotation, &scale};
    for (int i = 0; i < kPartCount; ++i)
        if (parts_[i] != nullptr) parts_[i]->GetValue(t, values[i], valid, CTRL_ABSOLUTE);

    Matrix3 local(1);
    if (!scale.q.IsIdentity()) PreRotateMatrix(local, Inverse(scale.q));
    local.Scale(scale.s);
    if (!scale.q.IsIdentity()) RotateMatrix(local, scale.q);
    RotateMatrix(local, rotation);
    local.SetTrans(position);
    return local;
}

void PrsControl::GetValue(TimeValue t, void* val, Interval& valid, GetSetMethod method) {
    Matrix3& tm = *static_cast<Matrix3*>(val);
    const Matrix3 local = localAt(t, valid);
    tm = method == CTRL_RELATIVE ? local * tm : local;
}

void PrsControl::SetValue(TimeValue t, void* val, int commit, GetSetMethod method) {
    const SetXFormPacket& packet = *static_cast<const SetXFormPacket*>(val);
    Interval valid = FOREVER;
    const Matrix3 base = method == CTRL_RELATIVE ? localAt(t, valid) : Matrix3(1);
    setParts(t, applied(packet, base), partsConcerned(packet, method), commit);
}

void PrsControl::setParts(TimeValue t, const Matrix3& local, unsigned parts, int commit) {
    if (!isFinite(local)) return;
    AffineParts affine;
    decomp_affine(local, &affine);
    ScaleValue scale(affine.k * affine.f);
    void* const values[] = {&affine.t, &affine.q, &scale};

    settingParts_ = true;
    for (int i = 0; i < kPartCount; ++i) {
        if (parts_[i] != nullptr && (parts & (1u << i)) != 0)
            parts_[i]->SetValue(t, values[i], commit, CTRL_ABSOLUTE);
    }
    settingParts_ = false;
    NotifyDependents(FOREVER, PART_ALL, REFMSG_CHANGE);
}

void PrsControl::Copy(Control* from) {
    if (from == nullptr || from == this || from->SuperClassID() != SuperClassID()) return;
    Matrix3 local(1);
    Interval valid = FOREVER;
    from->GetValue(0, &local, valid, CTRL_RELATIVE);
    setParts(0, local, kAllParts, 0);
}

}  // namespace maxhost
