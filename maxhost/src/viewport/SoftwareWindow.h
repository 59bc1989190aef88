#pragma once

#include <gfx.h>

#include "maxhost/src/viewport/PickTest.h"
#include "maxhost/src/viewport/WorldPainter.h"

namespace maxhost {

/// The drawing surface that objects get: maps what they draw to the world and paints it, or, while GW_PICK is
/// among the modes, tests it against the hit region. The mode is what the limits allow.
class CoreExport SoftwareWindow : public GraphicsWindow {
  public:
    static constexpr DWORD kDefaultLimits =
        GW_ILLUM | GW_FLAT | GW_SPECULAR | GW_Z_BUFFER | GW_PERSP_CORRECT | GW_COLOR_VERTS | GW_SHADE_CVERTS;

    explicit SoftwareWindow(WorldPainter& painter) : painter_(painter) {}

    void setTransform(const Matrix3& m) override { toWorld_ = m; }
    DWORD getRndLimits() const override { return limits_; }
    void setRndLimits(DWORD limits) override { limits_ = limits; }
    DWORD getRndMode() const override { return limits_; }
    using GraphicsWindow::setColor;
    void setColor(int which, float r, float g, float b) override;
    /// The diffuse colour of `m` becomes the fill colour; there is one material at a time.
    void setMaterial(const Material& m, int index = 0) override;
    void setHitRegion(HitRegion* hr) override { pick_.setRegion(hr); }
    void clearHitCode() override { hit_ = false; }
    BOOL checkHitCode() override { return hit_ ? TRUE : FALSE; }
    void polyline(int ct, Point3* pts, Point3* rgb, int closed, int* es) override;
    void triangle(Point3* pts, Point3* rgb) override;
    void triangleW(Point3* pts, int* es) override;
    void text(Point3* at, const TCHAR* s) override;

  private:
    bool picking() const { return (limits_ & GW_PICK) != 0; }
    void segment(const Point3& a, const Point3& b, const LinearColor& color);
    void pickTriangle(const Point3 (&world)[3]);
    void fillTriangle(const Point3 (&world)[3], const Point3* rgb);
    void outline(const Point3 (&world)[3], const int* es);
    bool isCulled(const Point3 (&world)[3]) const;
    bool facesAway(const Point3 (&world)[3]) const;

    WorldPainter& painter_;
    PickTest pick_;
    Matrix3 toWorld_{1};
    DWORD limits_ = kDefaultLimits;
    Color line_{1, 1, 1}, fill_{0.7f, 0.7f, 0.7f}, text_{1, 1, 1};
    bool hit_ = false;
};

}  // namespace maxhost
