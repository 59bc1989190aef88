#include "adaptor/max/services/OptionChangeRestoreObj.h"

#include "adaptor/max/services/AdaptorOptions.h"

namespace qvo::zmx::adaptor::max {

void OptionChangeRestoreObj::restore(bool /*isUndo*/) {
    storeOption(id_, formerValue_);
}

void OptionChangeRestoreObj::redo() {
    storeOption(id_, newValue_);
}

}  // namespace qvo::zmx::adaptor::max
