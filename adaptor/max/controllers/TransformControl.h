#pragma once

#include "adaptor/max/controllers/BaseControl.h"
#include "adaptor/max/controllers/ControlList.h"

namespace qvo::zmx::adaptor::max {

/// Drives a node's transform. Keys and current value are local matrices, relative to the node's parent;
/// between keys the blend happens in the space around the parent.
class TransformControl : public BaseControl<Matrix3> {
  public:
    TransformControl();

    // Animatable

    /// Opens the motion panel's page with the conversion button; at most one page is open.
    void BeginEditParams(IObjParam* ip, ULONG flags, Animatable* prev) override;
    void EndEditParams(IObjParam* ip, ULONG flags, Animatable* next) override;

    // Control

    /// `val` is a Matrix3. With CTRL_RELATIVE it comes in as the parent's world matrix and goes out as the
    /// node's; with CTRL_ABSOLUTE it becomes the local matrix, evaluated as below an identity parent. The
    /// result holds at `t` only.
    void GetValue(TimeValue t, void* val, Interval& valid, GetSetMethod method) override;

    /// `val` is a SetXFormPacket. CTRL_RELATIVE changes the current local matrix, CTRL_ABSOLUTE starts from
    /// the identity. A key arises in animate mode only; otherwise the value lasts until another time is
    /// evaluated.
    void SetValue(TimeValue t, void* val, int commit, GetSetMethod method) override;

    /// Makes every key and the current matrix relative to the new parent, so that the node keeps its place. A
    /// singular new parent changes nothing. Always TRUE.
    BOOL ChangeParents(TimeValue t, const Matrix3& oldP, const Matrix3& newP, const Matrix3& tm) override;

    // BaseControl

    /// Interpolated below an identity parent; the current value while there are no keys.
    Key keyAtTime(TimeValue t) override;

    /// The interface that shows the page, or null while none is open.
    Interface* pageInterface() const { return pageInterface_; }

  protected:
    ~TransformControl() override;

  private:
    /// `parent` null: identity.
    Key evaluate(TimeValue t, const Matrix3* parent) const;
    Matrix3 blendedAt(TimeValue t, const Key& left, const Key& right, const Matrix3* parent) const;
    void forgetPage();

    bool toldSingular_ = false;  ///< the log holds a line on a parent or axis system without an inverse
    HWND page_ = nullptr;
    Interface* pageInterface_ = nullptr;
    ControlListEntry<TransformControl> listEntry_;
};

}  // namespace qvo::zmx::adaptor::max
