#include "samples/mocap_core/GridChange.h"

namespace qvo::zmx::mocap {

void GridChange::restore(bool /*isUndo*/) {
    grid_.apply(before_);
}

void GridChange::redo() {
    grid_.apply(after_);
}

}  // namespace qvo::zmx::mocap
