#include "adaptor/max/services/OptionChangeRestoreObj.h"

#include <cstdint>

#include "adaptor/max/plugin/UtilityManager.h"
#include "adaptor/max/services/Boundary.h"

namespace qvo::zmx::adaptor::max {

void storeOption(unsigned int id, bool value) {
    UtilityManager& manager = UtilityManager::instance();
    manager.options().setValue(id, value);
    const std::int32_t told = value ? 1 : 0;
    if (manager.core) guarded("CoreObject::optionChanged", [&] { manager.core->optionChanged(id, &told); });
}

void OptionChangeRestoreObj::restore(bool /*isUndo*/) {
    storeOption(id_, formerValue_);
}

void OptionChangeRestoreObj::redo() {
    storeOption(id_, newValue_);
}

}  // namespace qvo::zmx::adaptor::max
