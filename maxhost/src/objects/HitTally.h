#pragma once

#include <gfx.h>

namespace maxhost {

/// Finds out whether a region hits a thing that is drawn in parts. For its lifetime the window picks with
/// that region; then it has its former modes again.
///
/// A point, and a region with `crossing`, hits the thing with any of its parts. Another region must hold all
/// of them, also those that culling or hidden edges would leave out.
class HitTally {
  public:
    HitTally(GraphicsWindow& window, HitRegion& region, bool abortOnHit)
        : window_(window),
          formerLimits_(window.getRndLimits()),
          wholly_(region.type != POINT_RGN && !region.crossing),
          abortOnHit_(abortOnHit) {
        window_.setRndLimits((formerLimits_ | GW_PICK) & ~(wholly_ ? GW_WIREFRAME | GW_BACKCULL : 0u));
        window_.setHitRegion(&region);
    }
    ~HitTally() { window_.setRndLimits(formerLimits_); }
    HitTally(const HitTally&) = delete;
    HitTally& operator=(const HitTally&) = delete;

    /// Draws the next part by calling `draw`. False when the parts that follow can change nothing.
    template <class Draw>
    bool add(Draw draw) {
        window_.clearHitCode();
        draw();
        const bool hit = window_.checkHitCode() != FALSE;
        any_ = any_ || hit;
        all_ = all_ && hit;
        return wholly_ ? all_ : !(any_ && abortOnHit_);
    }
    bool hit() const { return any_ && (all_ || !wholly_); }

  private:
    GraphicsWindow& window_;
    const DWORD formerLimits_;
    const bool wholly_, abortOnHit_;
    bool any_ = false, all_ = true;
};

}  // namespace maxhost
