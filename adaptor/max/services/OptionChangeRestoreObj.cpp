#include "adaptor/max/services/OptionChangeRestoreObj.h"

#include "adaptor/max/plugin/UtilityManager.h"
#include "adaptor/max/services/Boundary.h"

namespace qvo::zmx::adaptor::max {

void storeOption(unsigned int id, bool value) {
    UtilityManager& manager = UtilityManager::instance();
    manager.options().setValue(id, value);
    if (manager.core) guarded("CoreObject::optionChanged", [&] { manager.core->optionChanged(id, &value); });
}

void OptionChangeRestoreObj::restore(bool /*isUndo*/) {
    storeOption(id_, formerValue_);
}

void OptionChangeRestoreObj::redo() {
    storeOption(id_, newValue_);
}

}  // namespace qvo::zmx::adaptor::max
