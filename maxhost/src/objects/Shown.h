#pragma once

#include "maxhost/src/objects/Figures.h"

namespace maxhost {

/// An object that shows, picks and measures itself by one figure (Mesh or LineFigure) and evaluates to
/// itself.
template <class Base, class Figure>
class Shown : public Base {
  public:
    ObjectState Eval(TimeValue) override { return ObjectState(this); }
    CreateMouseCallBack* GetCreateMouseCallBack() override { return nullptr; }

    int Display(TimeValue t, INode* inode, ViewExp* vpt, int) override {
        displayFigure(figureAt(t, vpt), t, *inode, *vpt);
        return 1;
    }
    int HitTest(TimeValue t, INode* inode, int type, int crossing, int flags, IPoint2* p,
                ViewExp* vpt) override {
        constexpr int kTolerance = 4;  // pixels
        HitRegion region;
        MakeHitRegion(region, type, crossing, kTolerance, p);
        return hitFigure(figureAt(t, vpt), t, *inode, *vpt, region, flags) ? 1 : 0;
    }
    void GetLocalBoundBox(TimeValue t, INode*, ViewExp* vpt, Box3& box) override {
        box = figureBox(figureAt(t, vpt), nullptr);
    }
    void GetWorldBoundBox(TimeValue t, INode* inode, ViewExp* vpt, Box3& box) override {
        Matrix3 tm = inode->GetObjectTM(t);
        box = figureBox(figureAt(t, vpt), &tm);
    }
    void GetDeformBBox(TimeValue t, Box3& box, Matrix3* tm = nullptr, BOOL = FALSE) override {
        box = figureBox(figureAt(t, nullptr), tm);
    }
    int IntersectRay(TimeValue t, Ray& r, float& at, Point3& norm) override {
        return intersectFigure(figureAt(t, nullptr), r, at, norm);
    }

  protected:
    Shown() = default;
    ~Shown() override = default;

    /// The object's look at `t`, in object space. Good until the next call. `view` may be null; it tells the
    /// size of things that keep their size on the screen.
    virtual Figure& figureAt(TimeValue t, ViewExp* view) = 0;
};

}  // namespace maxhost
