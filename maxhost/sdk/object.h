#pragma once

#include "box3.h"
#include "gfx.h"
#include "ray.h"
#include "ref.h"

class CreateMouseCallBack;
class INode;
class Object;
class SnapInfo;
class ViewExp;

/// `type` of BaseObject::HitTest.
constexpr int HITTYPE_POINT = 0x1;
constexpr int HITTYPE_BOX = 0x2;
constexpr int HITTYPE_CIRCLE = 0x3;
constexpr int HITTYPE_SOLID = 0x4;
constexpr int HITTYPE_FENCE = 0x5;

/// `flags` of BaseObject::HitTest.
constexpr int HIT_SELONLY = 1 << 0;
constexpr int HIT_UNSELONLY = 1 << 2;
constexpr int HIT_ABORTONHIT = 1 << 3;
constexpr int HIT_SELSOLID = 1 << 4;
constexpr int HIT_ANYSOLID = 1 << 5;

/// Fills a region from a HITTYPE and its pixels: point 1, box 2, circle 2 (centre, rim), fence any number.
CoreExport void MakeHitRegion(HitRegion& hr, int type, int crossing, int epsi, IPoint2* p);

/// Result of evaluating an object. The object belongs to the host. Simplified: carries no transform of its
/// own.
class CoreExport ObjectState {
  public:
    Object* obj = nullptr;

    ObjectState() = default;
    explicit ObjectState(Object* object) : obj(object) {}

    /// Null: the identity.
    Matrix3* GetTM() const { return nullptr; }
    Interval Validity(TimeValue t) const;
};

/// Something that a node can show.
class CoreExport BaseObject : public ReferenceTarget {
  public:
    /// Nonzero when hit. `p` holds as many pixels as `type` needs.
    virtual int HitTest(TimeValue /*t*/, INode* /*inode*/, int /*type*/, int /*crossing*/, int /*flags*/,
                        IPoint2* /*p*/, ViewExp* /*vpt*/) {
        return 0;
    }
    virtual int Display(TimeValue /*t*/, INode* /*inode*/, ViewExp* /*vpt*/, int /*flags*/) { return 0; }
    virtual void Snap(TimeValue /*t*/, INode* /*inode*/, SnapInfo* /*snap*/, IPoint2* /*p*/,
                      ViewExp* /*vpt*/) {}
    virtual void GetWorldBoundBox(TimeValue /*t*/, INode* /*inode*/, ViewExp* /*vpt*/, Box3& /*box*/) {}
    virtual void GetLocalBoundBox(TimeValue /*t*/, INode* /*inode*/, ViewExp* /*vpt*/, Box3& /*box*/) {}
    /// Null: the host's own way of placing a new object is used.
    virtual CreateMouseCallBack* GetCreateMouseCallBack() = 0;
    virtual TCHAR* GetObjectName();

  protected:
    BaseObject() = default;
    ~BaseObject() override = default;
};

class CoreExport Object : public BaseObject {
  public:
    virtual ObjectState Eval(TimeValue t) = 0;
    /// Start of the name of a new node for this object; the host adds a number.
    virtual void InitNodeName(TSTR& s) { s = _T("Object"); }
    virtual Interval ObjectValidity(TimeValue /*t*/) { return FOREVER; }
    virtual int CanConvertToType(Class_ID type) { return type == ClassID() ? 1 : 0; }
    /// The object itself when it already is of that type, else a new one that the caller owns (delete it with
    /// MaybeAutoDelete), or null.
    virtual Object* ConvertToType(TimeValue /*t*/, Class_ID type) {
        return type == ClassID() ? this : nullptr;
    }
    virtual int IsRenderable() { return 0; }
    virtual int UsesWireColor() { return 1; }
    virtual int DoOwnSelectHilite() { return 0; }
    virtual void GetDeformBBox(TimeValue /*t*/, Box3& /*box*/, Matrix3* /*tm*/ = nullptr,
                               BOOL /*useSel*/ = FALSE) {}
    /// Nonzero when hit; `at` in lengths of the ray's direction.
    virtual int IntersectRay(TimeValue /*t*/, Ray& /*r*/, float& /*at*/, Point3& /*norm*/) { return 0; }

  protected:
    Object() = default;
    ~Object() override = default;
};

inline Interval ObjectState::Validity(TimeValue t) const {
    return obj == nullptr ? FOREVER : obj->ObjectValidity(t);
}

class CoreExport GeomObject : public Object {
  public:
    SClass_ID SuperClassID() override { return GEOMOBJECT_CLASS_ID; }
    int IsRenderable() override { return 1; }

  protected:
    GeomObject() = default;
    ~GeomObject() override = default;
};

class CoreExport HelperObject : public Object {
  public:
    SClass_ID SuperClassID() override { return HELPER_CLASS_ID; }
    int IsRenderable() override { return 0; }

  protected:
    HelperObject() = default;
    ~HelperObject() override = default;
};

/// How a curve parameter is read: by segment, or by length.
constexpr int PARAM_SIMPLE = 0;
constexpr int PARAM_NORMALIZED = 1;

/// Curves; parameters run from 0 to 1 along each, points and tangents in object space.
class CoreExport ShapeObject : public GeomObject {
  public:
    SClass_ID SuperClassID() override { return SHAPE_CLASS_ID; }
    virtual int NumberOfCurves() = 0;
    int NumberOfCurves(TimeValue /*t*/) { return NumberOfCurves(); }
    virtual BOOL CurveClosed(TimeValue t, int curve) = 0;
    virtual Point3 InterpCurve3D(TimeValue t, int curve, float param, int ptype = PARAM_SIMPLE) = 0;
    virtual Point3 TangentCurve3D(TimeValue t, int curve, float param, int ptype = PARAM_SIMPLE) = 0;
    virtual float LengthOfCurve(TimeValue t, int curve) = 0;
    virtual int NumberOfPieces(TimeValue t, int curve) = 0;

  protected:
    ShapeObject() = default;
    ~ShapeObject() override = default;
};

/// Field of view in radians, target distance in system units. `valid` is narrowed; pass a named Interval (the
/// real header's default arguments for it need a compiler extension and are left out here).
class CoreExport CameraObject : public Object {
  public:
    SClass_ID SuperClassID() override { return CAMERA_CLASS_ID; }
    virtual void SetFOV(TimeValue t, float f) = 0;
    virtual float GetFOV(TimeValue t, Interval& valid) = 0;
    virtual void SetTDist(TimeValue t, float f) = 0;
    virtual float GetTDist(TimeValue t, Interval& valid) = 0;
    virtual void SetOrtho(BOOL ortho) = 0;
    virtual BOOL IsOrtho() = 0;

  protected:
    CameraObject() = default;
    ~CameraObject() override = default;
};
