#pragma once

#include "quat.h"
#include "ref.h"

enum GetSetMethod { CTRL_RELATIVE = 0, CTRL_ABSOLUTE = 1 };
enum SetXFormCommand { XFORM_MOVE, XFORM_ROTATE, XFORM_SCALE, XFORM_SET };

/// Value of a scale controller: factors along the axes that `q` gives.
class ScaleValue {
  public:
    Point3 s{1.0f, 1.0f, 1.0f};
    Quat q;

    ScaleValue() = default;
    explicit ScaleValue(const Point3& factors) : s(factors) {}
    ScaleValue(const Point3& factors, const Quat& axes) : s(factors), q(axes) {}
};

/// What a matrix controller's SetValue gets. `tmAxis` is the axis system of the incremental commands; for
/// XFORM_SET it is the (world) matrix to be set.
class SetXFormPacket {
  public:
    SetXFormCommand command = XFORM_SET;
    Matrix3 tmParent{1};
    Matrix3 tmAxis{1};
    Point3 p;
    Quat q;
    AngAxis aa;
    BOOL localOrigin = FALSE;

    SetXFormPacket() = default;
    explicit SetXFormPacket(const Matrix3& mat, const Matrix3& par = Matrix3(1))
        : tmParent(par), tmAxis(mat) {}
    SetXFormPacket(Point3 pt, const Matrix3& par = Matrix3(1), const Matrix3& a = Matrix3(1))
        : command(XFORM_MOVE), tmParent(par), tmAxis(a), p(pt) {}
    SetXFormPacket(Quat rotation, BOOL l, const Matrix3& par = Matrix3(1), const Matrix3& a = Matrix3(1))
        : command(XFORM_ROTATE), tmParent(par), tmAxis(a), q(rotation), aa(rotation), localOrigin(l) {}
    SetXFormPacket(AngAxis rotation, BOOL l, const Matrix3& par = Matrix3(1), const Matrix3& a = Matrix3(1))
        : command(XFORM_ROTATE), tmParent(par), tmAxis(a), q(rotation), aa(rotation), localOrigin(l) {}
    SetXFormPacket(Point3 pt, BOOL l, const Matrix3& par = Matrix3(1), const Matrix3& a = Matrix3(1))
        : command(XFORM_SCALE), tmParent(par), tmAxis(a), p(pt), localOrigin(l) {}
};

/// Gives a value for every time.
///
/// `val` by super class: float*, Point3* (position), Quat*, ScaleValue*, Matrix3*; SetValue gets a
/// SetXFormPacket* for matrices, and an AngAxis* for relative rotations.
///
/// The host's own keyframe controllers: while `Animating()` every set with commit makes a key at its time
/// (commit 0 never does); otherwise an unkeyed one takes the value as its constant and a keyed one shifts all
/// its keys by the difference. Simplified: the real host adds a key at frame 0 when the first key lies
/// elsewhere; this one does not.
class CoreExport Control : public ReferenceTarget {
  public:
    /// Narrows `valid` to the controller's own validity. CTRL_RELATIVE: floats and points add to the incoming
    /// value, a matrix controller pre-multiplies the incoming (parent) matrix.
    virtual void GetValue(TimeValue t, void* val, Interval& valid, GetSetMethod method = CTRL_ABSOLUTE) = 0;
    virtual void SetValue(TimeValue t, void* val, int commit = 1, GetSetMethod method = CTRL_ABSOLUTE) = 0;
    /// Takes over what it can from the controller whose place it takes.
    virtual void Copy(Control* from) = 0;

    virtual BOOL IsLeaf() { return TRUE; }
    /// The node moves from one parent to another (world matrices at `t`; `tm` is the node's). TRUE: the
    /// controller has changed its own values so that the node stays in place. FALSE: the caller sets the
    /// former world transform.
    virtual BOOL ChangeParents(TimeValue /*t*/, const Matrix3& /*oldP*/, const Matrix3& /*newP*/,
                               const Matrix3& /*tm*/) {
        return FALSE;
    }
    virtual void CommitValue(TimeValue /*t*/) {}
    virtual void RestoreValue(TimeValue /*t*/) {}
    virtual BOOL IsReplaceable() { return TRUE; }
    virtual BOOL CanInstanceController() { return TRUE; }
    virtual BOOL InheritsParentTransform() { return TRUE; }
    virtual BOOL IsColorController() { return FALSE; }
    virtual Control* GetPositionController() { return nullptr; }
    virtual Control* GetRotationController() { return nullptr; }
    virtual Control* GetScaleController() { return nullptr; }

    /// The base writes its flags as chunk 0x3003 at the present place, and reads that chunk if it comes next.
    IOResult Save(ISave* isave) override;
    IOResult Load(ILoad* iload) override;

  protected:
    Control() = default;
    ~Control() override = default;
};

/// New, unreferenced instances of the controllers that the host uses by default: linear ones and PRS.
CoreExport Control* NewDefaultFloatController();
CoreExport Control* NewDefaultPositionController();
CoreExport Control* NewDefaultRotationController();
CoreExport Control* NewDefaultScaleController();
CoreExport Control* NewDefaultMatrix3Controller();

/// Animate mode. Suspending saves the mode and switches it off, resuming restores it; pairs nest, and between
/// them the mode can be switched as usual.
CoreExport int Animating();
CoreExport void AnimateOn();
CoreExport void AnimateOff();
CoreExport void SuspendAnimate();
CoreExport void ResumeAnimate();
