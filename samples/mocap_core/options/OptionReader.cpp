#include "samples/mocap_core/options/OptionReader.h"

#include <limits>
#include <optional>

#include "samples/mocap_core/FileError.h"
#include "samples/mocap_core/Numbers.h"
#include "samples/mocap_core/options/ButtonOption.h"
#include "samples/mocap_core/options/CheckOption.h"
#include "util/Log.h"

namespace qvo::zmx::mocap {

using util::Log;
using util::logLine;
using util::xml::Element;

namespace {

OptionDescription describe(const Element& element) {
    return {0, element.attribute("name"), element.attribute("tooltip")};
}

/// The description of an element that is asked for by its id.
std::optional<OptionDescription> describeWithId(const Element& element) {
    const std::optional<std::size_t> id = parseCount(element.attribute("id"));
    if (!id || *id == 0 || *id > std::numeric_limits<unsigned int>::max()) {
        logLine(Log::kWarning,
                "An option without a usable id is left out: ", FileError::printable(element.toString()));
        return std::nullopt;
    }
    OptionDescription description = describe(element);
    description.id = static_cast<unsigned int>(*id);
    return description;
}

OptionElements readBody(const Element& parent, int depth);

std::unique_ptr<core::OptionElement> readElement(const Element& element, int depth) {
    if (element.value == "list") {
        if (depth < OptionReader::kMaxDepth)
            return std::make_unique<ListOption>(describe(element), readBody(element, depth + 1));
        logLine(Log::kWarning, "A list of options is nested too deep and is left out");
    } else if (element.value == "check") {
        if (auto description = describeWithId(element))
            return std::make_unique<CheckOption>(std::move(*description),
                                                 element.attribute("value") == "true");
    } else if (element.value == "button") {
        if (auto description = describeWithId(element))
            return std::make_unique<ButtonOption>(std::move(*description));
    }
    return nullptr;
}

OptionElements readBody(const Element& parent, int depth) {
    OptionElements elements;
    const Element* const body = parent.findTag("body");
    if (!body) return elements;
    for (const Element* const child : body->children) {
        if (child->kind != Element::kTag) continue;
        if (auto element = readElement(*child, depth)) elements.push_back(std::move(element));
    }
    return elements;
}

}  // namespace

std::unique_ptr<GroupOption> OptionReader::read(const Element& root) {
    if (root.kind != Element::kTag || root.value != "group") return nullptr;
    return std::make_unique<GroupOption>(describe(root), readBody(root, 1));
}

}  // namespace qvo::zmx::mocap
