#include "samples/mocap_core/state/ToolElement.h"

#include "util/Base64.h"
#include "util/BlockCompression.h"
#include "util/xml/Tag.h"
#include "util/xml/Text.h"

namespace qvo::zmx::mocap::tool {

using util::xml::Element;

Element make(const std::string& type, const std::string& name) {
    util::xml::Tag state(kElement);
    state.attributes["type"] = type;
    state.addTextTag("name", name);
    return state;
}

bool isTool(const Element& element) {
    return element.kind == Element::kTag && element.value == kElement;
}

std::string typeOf(const Element& tool) {
    return tool.attribute("type");
}

const std::string& nameOf(const Element& tool) {
    return tool.textOf("name");
}

Element packed(const Element& state) {
    const std::string text = state.toString();
    util::xml::Tag result(kElement);
    result.attributes["compressed"] = "1";
    result.addChild(util::xml::Text(
        util::Base64::encode(util::BlockCompression::compress(util::ByteBuffer(text.begin(), text.end())))));
    return result;
}

void append(Element& masternodes, const Element& state, const std::string& parent, int childIndex) {
    util::xml::Tag masternode("masternode");
    masternode.addChild(state);
    masternode.addTextTag("parent", parent);
    masternode.addTextTag("childindex", std::to_string(childIndex));
    masternodes.addChild(masternode);
}

}  // namespace qvo::zmx::mocap::tool
