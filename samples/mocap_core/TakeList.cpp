#include "samples/mocap_core/TakeList.h"

#include "samples/mocap_core/FileError.h"
#include "util/Log.h"
#include "util/xml/Tag.h"

namespace qvo::zmx::mocap {

using util::xml::Element;

void TakeList::write(const TakeSet& takes, Element& state) {
    // The element lives in the adaptor: it is changed through its virtual operations only.
    state.setValue(kElement);
    for (const Take* const take : takes.inScene()) {
        util::xml::Tag entry("take");
        entry.attributes["id"] = take->record().id;
        entry.addTextTag("name", take->record().name);
        state.addChild(entry);
    }
}

void TakeList::expect(const Element& state) {
    for (const Element* const child : state.children)
        if (child->kind == Element::kTag && child->value == "take")
            expected_[child->attribute("id")] = child->textOf("name");
    rootsDue_ = kRootsOfAScene;
}

void TakeList::rootArrived(const TakeSet& takes) {
    if (rootsDue_ == 0 || --rootsDue_ > 0) return;
    const std::unordered_set<std::string> present = takes.ids();
    for (const auto& [id, name] : expected_)
        if (present.count(id) == 0)
            util::logLine(util::Log::kWarning, "Take \"", FileError::printable(name),
                          "\" is named by the scene and has not come back");
    clear();
}

void TakeList::clear() {
    expected_.clear();
    rootsDue_ = 0;
}

}  // namespace qvo::zmx::mocap
