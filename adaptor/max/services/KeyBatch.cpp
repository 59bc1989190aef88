#include "adaptor/max/services/KeyBatch.h"

#include "adaptor/max/Host.h"

namespace qvo::zmx::adaptor::max {

void KeyBatch::begin() {
    if (depth_++ > 0) return;
    GetCOREInterface()->DisableSceneRedraw();
    wasAnimating_ = Animating() != 0;
    AnimateOn();
}

void KeyBatch::end() {
    if (depth_ == 0 || --depth_ > 0) return;
    if (!wasAnimating_) AnimateOff();
    GetCOREInterface()->EnableSceneRedraw();
}

void KeyBatch::endAll() {
    if (depth_ > 1) depth_ = 1;
    end();
}

}  // namespace qvo::zmx::adaptor::max
