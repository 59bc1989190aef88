#include "samples/mocap_core/options/OptionPanel.h"

#include <optional>
#include <stdexcept>
#include <string>

#include "samples/mocap_core/options/ButtonOption.h"
#include "samples/mocap_core/options/CheckOption.h"
#include "samples/mocap_core/options/ModuleResource.h"
#include "samples/mocap_core/options/OptionReader.h"
#include "util/Log.h"

namespace qvo::zmx::mocap {

using util::Log;
using util::logLine;
using util::xml::Element;

namespace {

constexpr char kResourceType[] = "XMLFILE";
constexpr unsigned short kResourceId = 152;

}  // namespace

void OptionPanel::open(core::AdaptorInterface& adaptor) {
    const std::optional<std::string> text = readResourceBeside(&adaptor, kResourceType, kResourceId);
    Element root;
    if (text && root.parse(*text) == Element::kParsed) group_ = OptionReader::read(root);
    if (!group_) {
        logLine(Log::kWarning, "The adaptor's description of its options ",
                text ? "cannot be read" : "is not there", ": they stay as they are");
        return;
    }
    adaptor.bindAdaptorOptions(group_.get());
}

void OptionPanel::noteValue(unsigned int id, bool value) {
    values_[id] = value;
    core::OptionElement* const element = group_ ? group_->findElement(id) : nullptr;
    if (element && element->getType() == core::OptionType::check)
        static_cast<CheckOption*>(element)->setValue(value);
}

bool OptionPanel::value(unsigned int id) const {
    const auto found = values_.find(id);
    return found != values_.end() && found->second;
}

void OptionPanel::choose(unsigned int id, bool value) {
    static_cast<CheckOption&>(find(id, core::OptionType::check)).choose(value);
}

void OptionPanel::press(unsigned int id) {
    static_cast<ButtonOption&>(find(id, core::OptionType::button)).press();
}

core::OptionElement& OptionPanel::find(unsigned int id, core::OptionType type) const {
    core::OptionElement* const element = group_ ? group_->findElement(id) : nullptr;
    if (!element || element->getType() != type)
        throw std::runtime_error("the adaptor has no " +
                                 std::string(type == core::OptionType::check ? "option " : "button ") +
                                 std::to_string(id));
    return *element;
}

}  // namespace qvo::zmx::mocap
