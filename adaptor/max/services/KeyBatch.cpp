#include "adaptor/max/services/KeyBatch.h"

#include "adaptor/max/Host.h"

namespace qvo::zmx::adaptor::max {

bool KeyBatch::begin() {
    if (depth_++ > 0) return false;
    GetCOREInterface()->DisableSceneRedraw();
    wasAnimating_ = Animating() != 0;
    AnimateOn();
    return true;
}

bool KeyBatch::end() {
    if (depth_ == 0 || --depth_ > 0) return false;
    if (!wasAnimating_) AnimateOff();
    GetCOREInterface()->EnableSceneRedraw();
    return true;
}

void KeyBatch::endAll() {
    if (depth_ > 1) depth_ = 1;
    end();
}

}  // namespace qvo::zmx::adaptor::max
