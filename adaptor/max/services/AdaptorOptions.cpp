#include "adaptor/max/services/AdaptorOptions.h"

#include <cstdint>

#include "adaptor/max/Boundary.h"
#include "adaptor/max/controllers/Conversion.h"
#include "adaptor/max/plugin/OptionStore.h"
#include "adaptor/max/plugin/UtilityManager.h"
#include "adaptor/max/services/MaxAdaptorInterface.h"
#include "adaptor/max/services/OptionChangeRestoreObj.h"
#include "adaptor/max/services/UndoGroupScope.h"

namespace qvo::zmx::adaptor::max {
namespace {

constexpr int kFirstOptionMessage = 16384;
constexpr int kLastOptionMessage = 17280;

bool isStoredOption(unsigned int id) {
    return id == kOptimizedControllerOption || id == kDynamicMeshesOption;
}

void convertAllControllers(const std::string& label) {
    const UndoGroupScope group(label);
    convertAllTransformControls();
    convertAllScalarControls();
}

void changeOption(unsigned int id, const std::string& label, bool value) {
    const UndoGroupScope group(label);
    const bool formerValue = UtilityManager::instance().options().value(id);
    MaxAdaptorInterface::instance().addOwnUndoRecord(new OptionChangeRestoreObj(id, formerValue, value));
    storeOption(id, value);
}

}  // namespace

void bindOptions(core::OptionGroup& options, util::MessageNode& listener) {
    for (const unsigned int id :
         {kConvertControllersOption, kDynamicMeshesOption, kOptimizedControllerOption}) {
        core::OptionElement* const element = options.findElement(id);
        if (!element) continue;
        if (isStoredOption(id) && element->getType() == core::OptionType::check)
            static_cast<core::OptionCheck*>(element)->setValue(
                UtilityManager::instance().options().value(id));
        listener.connect(element);
    }
}

void storeOption(unsigned int id, bool value) {
    UtilityManager& manager = UtilityManager::instance();
    manager.options().setValue(id, value);
    const std::int32_t told = value ? 1 : 0;
    if (manager.core) guarded("CoreObject::optionChanged", [&] { manager.core->optionChanged(id, &told); });
}

void handleOptionMessage(const util::Message& message) {
    if (!message.origin || message.code < kFirstOptionMessage || message.code > kLastOptionMessage) return;
    // Only option elements are ever connected to the adaptor.
    auto* const element = static_cast<core::OptionElement*>(message.origin);
    const std::string label = element->getLabel();
    const unsigned int id = element->getId();
    if (message.code == core::kOptionPressed && id == kConvertControllersOption)
        convertAllControllers(label);
    else if (message.code == core::kOptionChanged && element->getType() == core::OptionType::check &&
             isStoredOption(id))
        changeOption(id, label, static_cast<core::OptionCheck*>(element)->getValue());
}

}  // namespace qvo::zmx::adaptor::max
