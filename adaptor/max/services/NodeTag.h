#pragma once

#include <optional>
#include <string>

#include "adaptor/max/Host.h"
#include "util/xml/Element.h"

/// The tag by which the product's nodes are found again: XML text in the host node's user property "ZMK_tag",
/// on one line since a user property is one line.
///
///     <ZMK_tag>
///       <name>owner</name>  <objectname>node</objectname>
///       <masternodes> <masternode>...</masternode>... </masternodes>   only on the owner's first node
///     </ZMK_tag>
namespace qvo::zmx::adaptor::max {

/// The tag's text; none when the node has no tag or an empty one.
std::optional<std::string> readTagText(INode& node);

/// A new tag element with its "name" and "objectname" children.
util::xml::Element makeTag(const std::string& ownerName, const std::string& objectName);

void writeTag(INode& node, const util::xml::Element& tag);

/// Empties the tag; an empty tag counts as none.
void wipeTag(INode& node);

/// The owner's name that a tag carries.
const std::string& ownerNameOf(const util::xml::Element& tag);

/// The node's name that a tag carries.
const std::string& objectNameOf(const util::xml::Element& tag);

}  // namespace qvo::zmx::adaptor::max
