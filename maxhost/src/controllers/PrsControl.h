#pragma once

#include <control.h>

#include "maxhost/src/controllers/LinearControl.h"

namespace maxhost {

/// The host's default transform controller: position (0), rotation (1) and scale (2), each a controller of
/// its own with its own keys. Local transform = scale x rotation x position. A missing part counts as
/// neutral.
class PrsControl final : public Control {
  public:
    enum Part { kPosition, kRotation, kScale, kPartCount };

    /// Without parts it waits for a scene file or a clone to bring them.
    explicit PrsControl(bool withParts);

    // Animatable
    void DeleteThis() override;
    void GetClassName(TSTR& s) override { s = kName; }
    Class_ID ClassID() override { return Class_ID(PRS_CONTROL_CLASS_ID, 0); }
    SClass_ID SuperClassID() override { return CTRL_MATRIX3_CLASS_ID; }
    int NumSubs() override { return kPartCount; }
    Animatable* SubAnim(int i) override { return GetReference(i); }
    TSTR SubAnimName(int i) override;
    int SubNumToRefNum(int subNum) override { return subNum; }
    /// FALSE for a controller of another value type.
    BOOL AssignController(Animatable* control, int subAnim) override;
    /// From the first to the last key of all parts.
    Interval GetTimeRange(DWORD flags) override;

    // ReferenceMaker, ReferenceTarget
    int NumRefs() override { return kPartCount; }
    RefTargetHandle GetReference(int i) override { return isPart(i) ? parts_[i] : nullptr; }
    /// A target of the wrong value type is taken for null.
    void SetReference(int i, RefTargetHandle target) override;
    /// Messages of parts stop here while this controller sets them; one message of its own follows.
    RefResult NotifyRefChanged(Interval, RefTargetHandle, PartID&, RefMessage) override {
        return settingParts_ ? REF_STOP : REF_SUCCEED;
    }
    RefTargetHandle Clone(RemapDir& remap) override;

    // Control
    void GetValue(TimeValue t, void* val, Interval& valid, GetSetMethod method = CTRL_ABSOLUTE) override;
    /// XFORM_SET: local = tmAxis x inverse(tmParent), taken apart; shear is lost. XFORM_MOVE, XFORM_ROTATE
    /// and XFORM_SCALE change the present local transform (CTRL_ABSOLUTE: the identity) in the axis system
    /// given, and only the parts concerned are set. Non-finite results are ignored.
    void SetValue(TimeValue t, void* val, int commit = 1, GetSetMethod method = CTRL_ABSOLUTE) override;
    /// The local transform at 0.
    void Copy(Control* from) override;
    BOOL IsLeaf() override { return FALSE; }
    /// Re-expresses all keys if the parts are the host's own, else answers FALSE. A singular new parent
    /// changes nothing.
    BOOL ChangeParents(TimeValue t, const Matrix3& oldP, const Matrix3& newP, const Matrix3& tm) override;
    Control* GetPositionController() override { return parts_[kPosition]; }
    Control* GetRotationController() override { return parts_[kRotation]; }
    Control* GetScaleController() override { return parts_[kScale]; }

    static constexpr const TCHAR* kName = _T("Position/Rotation/Scale");

  private:
    static bool isPart(int i) { return i >= 0 && i < kPartCount; }
    void adopt(int part, Control* control);
    Matrix3 localAt(TimeValue t, Interval& valid);
    void setParts(TimeValue t, const Matrix3& local, unsigned parts, int commit);
    bool hasBuiltinParts() const;

    Control* parts_[kPartCount] = {nullptr, nullptr, nullptr};
    bool settingParts_ = false;
};

}  // namespace maxhost
