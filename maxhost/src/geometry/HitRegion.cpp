#include <cmath>

#include <object.h>

void MakeHitRegion(HitRegion& hr, int type, int crossing, int epsi, IPoint2* p) {
    hr.crossing = crossing;
    hr.epsilon = epsi;
    hr.dir = 0;
    switch (type) {
        case HITTYPE_BOX:
        case HITTYPE_SOLID:
            hr.type = RECT_RGN;
            hr.rect.left = p[0].x;
            hr.rect.top = p[0].y;
            hr.rect.right = p[1].x;
            hr.rect.bottom = p[1].y;
            break;
        case HITTYPE_CIRCLE: {
            const IPoint2 rim = p[1] - p[0];
            hr.type = CIRCLE_RGN;
            hr.circle.x = p[0].x;
            hr.circle.y = p[0].y;
            hr.circle.r = static_cast<LONG>(std::lround(std::hypot(rim.x, rim.y)));
            break;
        }
        case HITTYPE_FENCE:
            static_assert(sizeof(POINT) == sizeof(IPoint2), "a fence borrows the caller's pixels");
            hr.type = FENCE_RGN;
            hr.pts = reinterpret_cast<POINT*>(p);
            break;
        default:
            hr.type = POINT_RGN;
            hr.pt.x = p[0].x;
            hr.pt.y = p[0].y;
    }
}
