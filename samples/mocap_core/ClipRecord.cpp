#include "samples/mocap_core/ClipRecord.h"

#include "samples/mocap_core/FrameGrid.h"
#include "samples/mocap_core/Numbers.h"
#include "util/xml/Tag.h"

namespace qvo::zmx::mocap {

namespace {

bool readPositive(const util::xml::Element& element, const char* name, double& value) {
    return parseNumber(element.attribute(name), value) == NumberFault::none && value > 0.0;
}

}  // namespace

util::xml::Element ClipRecord::toElement() const {
    util::xml::Element element = util::xml::Tag("clip");
    element.attributes["frameTime"] = toText(frameTime);
    element.attributes["frames"] = std::to_string(frames);
    element.attributes["metresPerUnit"] = toText(metresPerUnit);
    element.attributes["multiplier"] = std::to_string(multiplier);
    element.attributes["userRate"] = toText(userRate);
    element.addTextTag("name", name);
    element.addTextTag("path", path);
    for (const std::string& joint : joints)
        element.addTextTag("joint", joint);
    return element;
}

std::optional<ClipRecord> ClipRecord::fromElement(const util::xml::Element& element) {
    if (element.kind != util::xml::Element::kTag || element.value != "clip") return std::nullopt;
    ClipRecord record;
    const std::optional<std::size_t> frames = parseCount(element.attribute("frames"));
    const std::optional<std::size_t> multiplier = parseCount(element.attribute("multiplier"));
    if (!frames || !multiplier || *multiplier < 1 || *multiplier > FrameGrid::kTicksPerSecond)
        return std::nullopt;
    if (!readPositive(element, "frameTime", record.frameTime) ||
        !readPositive(element, "metresPerUnit", record.metresPerUnit) ||
        !readPositive(element, "userRate", record.userRate))
        return std::nullopt;
    record.frames = *frames;
    record.multiplier = static_cast<int>(*multiplier);
    record.name = element.textOf("name");
    record.path = element.textOf("path");
    for (const util::xml::Element* child : element.children) {
        if (child->kind == util::xml::Element::kTag && child->value == "joint")
            record.joints.push_back(child->text());
    }
    return record;
}

}  // namespace qvo::zmx::mocap
