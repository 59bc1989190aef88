#pragma once

#include "acolor.h"
#include "ipoint2.h"
#include "matrix3.h"
#include "strbasic.h"

/// Render limits and modes.
constexpr DWORD GW_WIREFRAME = 0x1;
constexpr DWORD GW_ILLUM = 0x2;
constexpr DWORD GW_FLAT = 0x4;
constexpr DWORD GW_SPECULAR = 0x8;
constexpr DWORD GW_TEXTURE = 0x10;
constexpr DWORD GW_Z_BUFFER = 0x20;
constexpr DWORD GW_PERSP_CORRECT = 0x40;
constexpr DWORD GW_POLY_EDGES = 0x80;
constexpr DWORD GW_BACKCULL = 0x100;
constexpr DWORD GW_TWO_SIDED = 0x200;
constexpr DWORD GW_COLOR_VERTS = 0x400;
constexpr DWORD GW_SHADE_CVERTS = 0x800;
constexpr DWORD GW_PICK = 0x1000;
constexpr DWORD GW_BOX_MODE = 0x2000;
constexpr DWORD GW_ALL_EDGES = 0x4000;
constexpr DWORD GW_VERT_TICKS = 0x8000;
constexpr DWORD GW_LIGHTING = GW_ILLUM | GW_SPECULAR;

/// First argument of setColor.
constexpr int LINE_COLOR = 0;
constexpr int FILL_COLOR = 1;
constexpr int TEXT_COLOR = 2;
constexpr int CLEAR_COLOR = 3;

/// HitRegion types.
constexpr int POINT_RGN = 0x1;
constexpr int RECT_RGN = 0x2;
constexpr int CIRCLE_RGN = 0x4;
constexpr int FENCE_RGN = 0x8;

struct CIRCLE {
    LONG x, y, r;
};

/// Where a pick looks, in window pixels.
class HitRegion {
  public:
    int type;
    int dir;
    int crossing;
    int epsilon;
    union {
        POINT pt;
        RECT rect;
        CIRCLE circle;
        POINT* pts;
    };
};

/// Surface for viewport drawing, colours 0 to 1.
class Material {
  public:
    Point3 Ka{0.6f, 0.6f, 0.6f};
    Point3 Kd{0.8f, 0.8f, 0.8f};
    Point3 Ks{0.9f, 0.9f, 0.9f};
    float shininess = 0.5f;
    float shinStrength = 0;
    float opacity = 1;
    float selfIllum = 0;
};

/// What a viewport draws into. Points are in the space that setTransform maps to the world.
class GraphicsWindow {
  public:
    virtual ~GraphicsWindow() = default;
    virtual void setTransform(const Matrix3& m) = 0;
    /// The limits are the master mode: getRndMode is always a part of them.
    virtual DWORD getRndLimits() const = 0;
    virtual void setRndLimits(DWORD limits) = 0;
    virtual DWORD getRndMode() const = 0;
    virtual void setColor(int which, float r, float g, float b) = 0;
    void setColor(int which, const Point3& rgb) { setColor(which, rgb.x, rgb.y, rgb.z); }
    void setColor(int which, const Color& c) { setColor(which, c.r, c.g, c.b); }
    virtual void setMaterial(const Material& m, int index = 0) = 0;
    virtual void setHitRegion(HitRegion* hr) = 0;
    virtual void clearHitCode() = 0;
    virtual BOOL checkHitCode() = 0;
    /// `rgb` and `es` (colour and visibility per point) may be null.
    virtual void polyline(int ct, Point3* pts, Point3* rgb, int closed, int* es) = 0;
    virtual void triangle(Point3* pts, Point3* rgb) = 0;
    /// The edges of a triangle in the line colour, culled as a filled one is. `es`: visibility of the edges
    /// that start at each point, null for all visible.
    virtual void triangleW(Point3* pts, int* es) { polyline(3, pts, nullptr, 1, es); }
    virtual void text(Point3* at, const TCHAR* s) = 0;
};
