#include "samples/mocap_core/options/ListOption.h"

namespace qvo::zmx::mocap {

core::OptionElement* findOption(const OptionElements& elements, unsigned int id) {
    for (const auto& element : elements) {
        if (element->getId() == id) return element.get();
        if (element->getType() != core::OptionType::list) continue;
        const auto& list = static_cast<const ListOption&>(*element);
        if (core::OptionElement* const found = findOption(list.elements(), id)) return found;
    }
    return nullptr;
}

}  // namespace qvo::zmx::mocap
