#include "adaptor/max/services/NodeTag.h"

#include "util/xml/Tag.h"

namespace qvo::zmx::adaptor::max {
namespace {

TSTR tagKey() {
    return TSTR("ZMK_tag");
}

}  // namespace

std::optional<std::string> readTagText(INode& node) {
    if (!node.UserPropExists(tagKey())) return std::nullopt;
    TSTR text;
    node.GetUserPropString(tagKey(), text);
    if (text.Length() == 0) return std::nullopt;
    return std::string(text.data(), static_cast<std::size_t>(text.Length()));
}

util::xml::Element makeTag(const std::string& ownerName, const std::string& objectName) {
    util::xml::Element tag = util::xml::Tag("ZMK_tag");
    tag.addTextTag("name", ownerName);
    tag.addTextTag("objectname", objectName);
    return tag;
}

void writeTag(INode& node, const util::xml::Element& tag) {
    node.SetUserPropString(tagKey(), TSTR(tag.toString().c_str()));
}

void wipeTag(INode& node) {
    node.SetUserPropString(tagKey(), TSTR(""));
}

const std::string& ownerNameOf(const util::xml::Element& tag) {
    return tag.textOf("name");
}

const std::string& objectNameOf(const util::xml::Element& tag) {
    return tag.textOf("objectname");
}

}  // namespace qvo::zmx::adaptor::max
