#include "maxhost/src/controllers/AnimateMode.h"

#include <control.h>

#include "maxhost/src/undo/Faults.h"

namespace maxhost {

AnimateMode& AnimateMode::instance() {
    static AnimateMode mode;
    return mode;
}

void AnimateMode::suspend() {
    saved_.push_back(on_);
    on_ = false;
}

void AnimateMode::resume() {
    if (saved_.empty()) {
        Faults::instance().record("ResumeAnimate without SuspendAnimate");
        return;
    }
    on_ = saved_.back();
    saved_.pop_back();
}

void AnimateMode::reset() {
    on_ = false;
    saved_.clear();
}

}  // namespace maxhost

using maxhost::AnimateMode;

int Animating() {
    return AnimateMode::instance().isOn() ? 1 : 0;
}
void AnimateOn() {
    AnimateMode::instance().set(true);
}
void AnimateOff() {
    AnimateMode::instance().set(false);
}
void SuspendAnimate() {
    AnimateMode::instance().suspend();
}
void ResumeAnimate() {
    AnimateMode::instance().resume();
}
